#include "desktop/Auswahl_windows.h"

#include "desktop/Desktoptexte.h"
#include "window/Formularfenster_windows.h"

#include <shobjidl.h>

#include <memory>

namespace zepholt::desktop {

namespace {

struct Freigabe {
    void operator()(IUnknown* schnittstelle) const { schnittstelle->Release(); }
};
template <class Schnittstelle>
using Zeiger = std::unique_ptr<Schnittstelle, Freigabe>;

Zeiger<IFileOpenDialog> Dialog(const char16_t* titel, FILEOPENDIALOGOPTIONS zusatz) {
    IFileOpenDialog* dialog = nullptr;
    if (FAILED(CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&dialog)))) {
        return nullptr;
    }
    FILEOPENDIALOGOPTIONS optionen = 0;
    dialog->GetOptions(&optionen);
    dialog->SetOptions(optionen | FOS_FORCEFILESYSTEM | zusatz);
    dialog->SetTitle(Breit(titel));
    return Zeiger<IFileOpenDialog>(dialog);
}

Text PfadVon(IShellItem& eintrag) {
    wchar_t* breit = nullptr;
    Text pfad;
    if (SUCCEEDED(eintrag.GetDisplayName(SIGDN_FILESYSPATH, &breit))) {
        const std::wstring_view sicht(breit);
        pfad.assign(sicht.begin(), sicht.end());
    }
    CoTaskMemFree(breit);
    return pfad;
}

std::vector<Text> Gewaehlte(IFileOpenDialog& dialog) {
    IShellItemArray* liste = nullptr;
    std::vector<Text> pfade;
    if (FAILED(dialog.GetResults(&liste))) {
        return pfade;
    }
    const Zeiger<IShellItemArray> ende(liste);
    DWORD anzahl = 0;
    liste->GetCount(&anzahl);
    for (DWORD i = 0; i < anzahl; ++i) {
        IShellItem* eintrag = nullptr;
        if (SUCCEEDED(liste->GetItemAt(i, &eintrag))) {
            const Zeiger<IShellItem> eigner(eintrag);
            pfade.push_back(PfadVon(*eintrag));
        }
    }
    return pfade;
}

} // namespace

std::vector<Text> DateienWaehlen(HWND eltern, bericht::Sprache sprache) {
    const Zeiger<IFileOpenDialog> dialog =
        Dialog(In(sprache, Desktoptext::WelcheDatei), FOS_ALLOWMULTISELECT | FOS_FILEMUSTEXIST);
    if (dialog == nullptr) {
        return {};
    }
    const COMDLG_FILTERSPEC arten[] = {
        {Breit(In(sprache, Desktoptext::Austauschdateien)), L"*.01S;*.E1S"},
        {Breit(In(sprache, Desktoptext::AlleDateien)), L"*.*"},
    };
    dialog->SetFileTypes(2, arten);
    return SUCCEEDED(dialog->Show(eltern)) ? Gewaehlte(*dialog) : std::vector<Text>();
}

std::optional<Text> KatalogWaehlen(HWND eltern, bericht::Sprache sprache, const Text& anfang) {
    const Zeiger<IFileOpenDialog> dialog = Dialog(In(sprache, Desktoptext::WelcherKatalog), FOS_PICKFOLDERS);
    if (dialog == nullptr) {
        return std::nullopt;
    }
    IShellItem* ordner = nullptr;
    if (SUCCEEDED(SHCreateItemFromParsingName(Breit(anfang), nullptr, IID_PPV_ARGS(&ordner)))) {
        const Zeiger<IShellItem> eigner(ordner);
        dialog->SetFolder(ordner);
    }
    if (FAILED(dialog->Show(eltern))) {
        return std::nullopt;
    }
    const std::vector<Text> pfade = Gewaehlte(*dialog);
    return pfade.empty() ? std::nullopt : std::optional(pfade.front());
}

} // namespace zepholt::desktop
