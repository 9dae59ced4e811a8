#include "desktop/Einstellungen_windows.h"

#include <windows.h>

#include <string>

namespace zepholt::desktop {

namespace {

constexpr const wchar_t* Schluessel = L"Software\\ZEPHOLT";
constexpr const wchar_t* Name = L"Katalog";

} // namespace

Text GemerkterKatalog() {
    std::wstring wert(32768, L'\0');
    auto bytes = static_cast<DWORD>(wert.size() * sizeof(wchar_t));
    if (RegGetValueW(HKEY_CURRENT_USER, Schluessel, Name, RRF_RT_REG_SZ, nullptr, wert.data(), &bytes) !=
        ERROR_SUCCESS) {
        return {};
    }
    wert.resize(wert.find(L'\0'));
    return {wert.begin(), wert.end()};
}

void KatalogMerken(const Text& ordner) {
    const std::wstring wert(ordner.begin(), ordner.end());
    RegSetKeyValueW(HKEY_CURRENT_USER, Schluessel, Name, REG_SZ, wert.c_str(),
                    static_cast<DWORD>((wert.size() + 1) * sizeof(wchar_t)));
}

} // namespace zepholt::desktop
