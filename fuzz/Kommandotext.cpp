// A command text: taken apart, tested, and for a silent run the whole of it, on a disk with an exchange file of each
// kind, a catalogue as a file and one as a folder.
#include "Ausgabepruefung.h"
#include "Probekatalog.h"
#include "Speicherplatte.h"
#include "Ziel.h"

#include "intake/ParameterPruefung.h"
#include "run/Main_Start.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

namespace zepholt::fuzz {

namespace {

constexpr std::string_view Datei = "A\r\nZ\r\n";

void BeginneLauf() {
    const ByteSicht bytes(reinterpret_cast<const unsigned char*>(Datei.data()), Datei.size());
    NeuerLauf();
    speicherplatte = {};
    speicherplatte.Dateien = {
        {u"a b.E1S", bytes}, {u"a.01S", bytes}, {u"k/N201241.qvm", Probekatalog()}, {u"k.vlt", Probekatalog()}};
}

void PruefeArgumente(TextSicht kommandotext, const std::vector<Text>& argumente) {
    Text zusammen;
    for (const Text& argument : argumente) {
        zusammen += argument;
    }
    Verlange(!argumente.empty(), "never an empty list");
    const auto ohneBlanks = [](Text text) {
        std::erase(text, u' ');
        return text;
    };
    Verlange(ohneBlanks(zusammen) == ohneBlanks(Text(kommandotext)), "nothing but blanks gets lost");
}

// The outcome of the parameter test; 0 for a run-time failure too.
std::int32_t Code(const std::vector<Text>& argumente) {
    try {
        const std::int32_t code = ParameterPruefen(argumente);
        Verlange(code == 0 || (code >= 1001 && code <= 1007), "a code of the parameter test");
        Verlange(code == 0 || !ParameterMeldung(code, 1).empty(), "each has its message");
        return code;
    } catch (const LaufzeitFehler&) {
        return 0;
    }
}

} // namespace

} // namespace zepholt::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl) {
    using namespace zepholt;
    using namespace zepholt::fuzz;
    BeginneLauf();
    const Text text = AusUtf8Bytes({reinterpret_cast<const char*>(bytes), anzahl});
    Verlange(Utf8Bytes(text) == std::string(bytes, bytes + anzahl), "bytes come back as they were");
    const Text kommandotext(OhneProgrammnamen(text));
    const std::vector<Text> argumente = KommandozeileZerlegen(kommandotext);
    PruefeArgumente(kommandotext, argumente);
    const std::int32_t code = Code(argumente);
    if (!testDaten.OhneDialog || !StilleVerlangt(argumente)) { // would show what is wrong
        return 0;
    }
    BeginneLauf();
    const int status = Main(kommandotext);
    Verlange(status == 0 || status == 1, "the exit status");
    if (code != 0) {
        Verlange(speicherplatte.Ausgabepfad.empty(), "a parameter error writes nothing");
    } else if (!speicherplatte.Ausgabepfad.empty()) {
        PruefeXml(speicherplatte.Ausgabe, testDaten.Spezialfunktion ? "ZEPHOLT" : "SIA451");
    }
    return 0;
}
