// Prints the texts of the windows that stand open, for the tests of the windows: each visible window with its title,
// and below it each of its visible controls with its text, lines joined by " | ". Standard output, UTF-8.
#include <windows.h>

#include <cstdio>
#include <string>

namespace {

std::string TextVon(HWND fenster) {
    std::wstring breit(4096, L'\0');
    DWORD_PTR anzahl = 0; // a window whose program is busy is not waited for
    if (SendMessageTimeoutW(fenster, WM_GETTEXT, breit.size(), reinterpret_cast<LPARAM>(breit.data()), SMTO_ABORTIFHUNG,
                            2000, &anzahl) == 0) {
        return {};
    }
    std::string text(4 * anzahl, '\0');
    const int laenge = WideCharToMultiByte(CP_UTF8, 0, breit.data(), static_cast<int>(anzahl), text.data(),
                                           static_cast<int>(text.size()), nullptr, nullptr);
    text.resize(static_cast<std::size_t>(laenge));
    std::string eineZeile;
    for (const char zeichen : text) {
        if (zeichen == '\n') {
            eineZeile += " | ";
        } else if (zeichen != '\r') {
            eineZeile += zeichen;
        }
    }
    return eineZeile;
}

BOOL CALLBACK Zeigen(HWND fenster, LPARAM einzug) {
    if (IsWindowVisible(fenster) != 0) {
        std::printf("%s%s\n", einzug != 0 ? "  " : "", TextVon(fenster).c_str());
    }
    return TRUE;
}

BOOL CALLBACK ZeigenMitTeilen(HWND fenster, LPARAM) {
    if (IsWindowVisible(fenster) != 0) {
        Zeigen(fenster, 0);
        EnumChildWindows(fenster, Zeigen, 1);
    }
    return TRUE;
}

} // namespace

int main() {
    EnumWindows(ZeigenMitTeilen, 0);
}
