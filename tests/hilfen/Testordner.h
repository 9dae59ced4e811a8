// A folder of its own for a test's files, gone with its content when the test ends.
#pragma once

#include "support/HilfsFunktionen.h"
#include "support/OS_API.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace zepholt::hilfen {

class Testordner {
public:
    explicit Testordner(TextSicht name = u"zepholt-test-") {
        std::random_device zufall;
        m_pfad = std::filesystem::temp_directory_path() / (Text(name) + ZahlText(zufall()) + u"-" + ZahlText(zufall()));
        std::filesystem::create_directories(m_pfad);
    }
    ~Testordner() {
        std::error_code fehler;
        std::filesystem::remove_all(System(m_pfad.u16string()), fehler);
    }
    Testordner(const Testordner&) = delete;
    Testordner& operator=(const Testordner&) = delete;

    const std::filesystem::path& Pfad() const { return m_pfad; }

    // The path of a name in the folder, as the program takes it.
    Text TextPfad(std::string_view name) const { return (m_pfad / name).u16string(); }

    // A path for the standard library, which needs a prefix for long ones where a backslash parts them.
    static std::filesystem::path System(const Text& pfad) {
        return PfadTrenner() == u'\\' ? std::filesystem::path(u"\\\\?\\" + pfad) : std::filesystem::path(pfad);
    }

    bool Hat(std::string_view name) const { return std::filesystem::exists(m_pfad / name); }

    bool Leer() const { return std::filesystem::is_empty(m_pfad); }

    void Schreibe(std::string_view name, std::string_view bytes) const { SchreibeDatei(m_pfad / name, bytes); }
    std::string Lies(std::string_view name) const { return LiesDatei(m_pfad / name); }

    static void SchreibeDatei(const std::filesystem::path& pfad, std::string_view bytes) {
        std::ofstream(pfad, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    static std::string LiesDatei(const std::filesystem::path& pfad) {
        std::ifstream datei(pfad, std::ios::binary);
        return {std::istreambuf_iterator<char>(datei), {}};
    }

private:
    std::filesystem::path m_pfad;
};

} // namespace zepholt::hilfen
