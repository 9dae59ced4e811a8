// A folder of its own for a test's files, gone with the test.
#pragma once

#include "support/Text.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace zepholt::hilfen {

class Testordner {
public:
    Testordner() {
        std::random_device zufall;
        m_pfad = std::filesystem::temp_directory_path() / ("zepholt-test-" + std::to_string(zufall()));
        std::filesystem::create_directories(m_pfad);
    }
    ~Testordner() {
        std::error_code fehler;
        std::filesystem::remove_all(m_pfad, fehler);
    }
    Testordner(const Testordner&) = delete;
    Testordner& operator=(const Testordner&) = delete;

    const std::filesystem::path& Pfad() const { return m_pfad; }

    // The path of a name in the folder, as the program takes it.
    Text TextPfad(std::string_view name) const { return (m_pfad / name).u16string(); }

    bool Hat(std::string_view name) const { return std::filesystem::exists(m_pfad / name); }

    bool Leer() const { return std::filesystem::is_empty(m_pfad); }

    void Schreibe(std::string_view name, std::string_view bytes) const {
        std::ofstream(m_pfad / name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }

    std::string Lies(std::string_view name) const {
        std::ifstream datei(m_pfad / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(datei), {}};
    }

private:
    std::filesystem::path m_pfad;
};

} // namespace zepholt::hilfen
