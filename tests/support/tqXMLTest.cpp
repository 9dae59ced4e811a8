#include "support/tqXML.h"

#include <gtest/gtest.h>

#include <random>

namespace zepholt {
namespace {

using Texte = std::vector<Text>;

Texte Gesucht(TextSicht name, TextSicht element) {
    tqXML xml;
    const std::vector<TextSicht> treffer = xml.SucheElemente(name, element);
    return {treffer.begin(), treffer.end()};
}

// --- The search as it is defined, step by step: recursive, with positions from 1 and 0 for not found -----------------

class WoertlicheSuche {
public:
    Texte SucheElemente(TextSicht name, TextSicht element) {
        m_suchtext = element;
        m_suchName = name;
        std::size_t position = 1;
        for (;;) {
            const std::size_t ergebnis = LeseElement(position);
            if (ergebnis == 0) {
                return m_treffer;
            }
            position = ergebnis + 1;
        }
    }

    static Text getName(TextSicht element) {
        const std::size_t auf = Stelle(element, 1, u'<');
        if (auf == 0) {
            return {};
        }
        std::size_t zu = Stelle(element, auf + 1, u'>');
        const std::size_t leer = Stelle(element, auf + 1, u' ');
        if (leer < zu) {
            zu = leer;
        }
        return zu < auf + 1 ? Text() : Text(element.substr(auf, zu - auf - 1));
    }

private:
    static std::size_t Stelle(TextSicht text, std::size_t ab, char16_t zeichen) {
        const std::size_t gefunden = text.find(zeichen, ab - 1);
        return gefunden == TextSicht::npos ? 0 : gefunden + 1;
    }

    std::size_t LeseElement(std::size_t start) {
        const std::size_t auf = Stelle(m_suchtext, start, u'<');
        if (auf == 0) {
            return 0;
        }
        std::size_t zu = Stelle(m_suchtext, auf + 1, u'>');
        if (zu == 0) {
            return 0;
        }
        if (m_suchtext[zu - 2] == u'/') {
            MerkeElement(auf, zu);
            return zu;
        }
        const std::size_t leer = Stelle(m_suchtext, auf + 1, u' ');
        if (leer < zu) {
            zu = leer;
        }
        if (zu < auf + 1) {
            return 0;
        }
        const Text elementName(m_suchtext.substr(auf, zu - auf - 1));
        std::size_t weiter = zu + 1;
        while (weiter > m_suchtext.size() || m_suchtext.substr(weiter - 1, 2) != u"</") {
            ++m_tiefe;
            const std::size_t ergebnis = LeseElement(weiter);
            --m_tiefe;
            if (ergebnis == 0) {
                return 0;
            }
            weiter = ergebnis + 1;
        }
        const std::size_t auf2 = Stelle(m_suchtext, weiter, u'<');
        const std::size_t zu2 = Stelle(m_suchtext, auf2 + 1, u'>');
        if (zu2 == 0 || m_suchtext.substr(auf2, zu2 - auf2 - 1) != u"/" + elementName) {
            return 0;
        }
        MerkeElement(auf, zu2);
        return zu2;
    }

    void MerkeElement(std::size_t anfang, std::size_t ende) {
        if (m_tiefe != 1) {
            return;
        }
        const TextSicht element = m_suchtext.substr(anfang - 1, ende - anfang + 1);
        if (m_suchName.empty() || getName(element) == m_suchName) {
            m_treffer.emplace_back(element);
        }
    }

    TextSicht m_suchtext;
    TextSicht m_suchName;
    Texte m_treffer;
    std::int32_t m_tiefe = 0;
};

void ErwarteWieWoertlich(TextSicht text) {
    for (const TextSicht name : {u"", u"a"}) {
        ASSERT_EQ(Gesucht(name, text), WoertlicheSuche().SucheElemente(name, text))
            << std::string(text.begin(), text.end());
    }
    ASSERT_EQ(tqXML::getName(text), WoertlicheSuche::getName(text)) << std::string(text.begin(), text.end());
}

// Every text of the length over the alphabet; 6 to the power of the length.
void JederText(std::size_t laenge, TextSicht alphabet) {
    std::vector<std::size_t> stand(laenge, 0);
    Text text(laenge, alphabet[0]);
    for (;;) {
        ErwarteWieWoertlich(text);
        std::size_t i = 0;
        while (i < laenge && stand[i] + 1 == alphabet.size()) {
            stand[i] = 0;
            text[i] = alphabet[0];
            ++i;
        }
        if (i == laenge || testing::Test::HasFatalFailure()) {
            return;
        }
        text[i] = alphabet[++stand[i]];
    }
}

// --- Search ----------------------------------------------------------------------------------------------------------

struct Suchfall {
    TextSicht Name;
    TextSicht Text;
    Texte Treffer;
};

TEST(tqXMLSuche, DirekteKinderInDerReihenfolge) {
    const TextSicht k = u"<K a=\"1\"><H b=\"1\"><U c=\"1\"/></H><H b=\"2\"/></K>";
    const Suchfall faelle[] = {
        {u"H", k, {u"<H b=\"1\"><U c=\"1\"/></H>", u"<H b=\"2\"/>"}},
        {u"U", k, {}}, // one level too deep
        {u"h", k, {}}, // case counts
        {u"", k, {u"<H b=\"1\"><U c=\"1\"/></H>", u"<H b=\"2\"/>"}},
        {u"", u"<K a=\"1\"><A b=\"1\"/><B c=\"1\"/></K>", {u"<A b=\"1\"/>", u"<B c=\"1\"/>"}},
        {u"H", u"<H a=\"1\"/>", {}}, // the outermost element is no child
        {u"", u"<H a=\"1\"/>", {}},
        {u"", u"", {}},
        {u"", u"no element", {}},
        {u"H", u"<K a=\"1\"><H></H><H b=\"2\"/></K>", {u"<H b=\"2\"/>"}}, // the first one's name comes out empty
        {u"", u"<K a=\"1\"><H></H><H b=\"2\"/></K>", {u"<H></H>", u"<H b=\"2\"/>"}},
        {u"H", u"<K a=\"1\"><H/></K>", {}}, // no blank behind its '<': no name
    };
    for (const Suchfall& fall : faelle) {
        EXPECT_EQ(Gesucht(fall.Name, fall.Text), fall.Treffer) << std::string(fall.Text.begin(), fall.Text.end());
    }
}

TEST(tqXMLSuche, MehrereAussenNebeneinander) {
    EXPECT_EQ(Gesucht(u"H", u"<K a=\"1\"><H b=\"1\"/></K>text<L a=\"1\"><H b=\"2\"/></L><M/>"),
              (Texte{u"<H b=\"1\"/>", u"<H b=\"2\"/>"}));
}

TEST(tqXMLSuche, OhneContentBrauchtEinSpaeteresLeerzeichen) {
    EXPECT_EQ(Gesucht(u"", u"<K><H></H><H></H></K> "), (Texte{u"<H></H>", u"<H></H>"}));
    EXPECT_EQ(Gesucht(u"", u"<K><H></H><H></H></K>"), Texte());
    EXPECT_EQ(Gesucht(u"", u"<K a=\"1\"><H></H><H></H></K>"), Texte());
    EXPECT_EQ(Gesucht(u"", u"<K a=\"1\"><H></H> <H></H></K>"), (Texte{u"<H></H>"}));
}

TEST(tqXMLSuche, TreffervorEinemFehlerBleiben) {
    EXPECT_EQ(Gesucht(u"", u"<K a=\"1\"><H b=\"1\"/><H b=\"2\"></H><H b=\"3\"/></K>"), (Texte{u"<H b=\"1\"/>"}));
    EXPECT_EQ(Gesucht(u"", u"<K a=\"1\"><H b=\"1\"/><H b=\"2\"/>"), (Texte{u"<H b=\"1\"/>", u"<H b=\"2\"/>"}));
    EXPECT_EQ(Gesucht(u"", u"<K a=\"1\"><H b=\"1\"/></L><H b=\"2\"/>"), (Texte{u"<H b=\"1\"/>"}));
}

TEST(tqXMLSuche, TextInhaltGehtNicht) {
    EXPECT_EQ(Gesucht(u"", u"<K a=\"1\"><Texte><T>abc</T><T>def</T></Texte></K>"), Texte());
    EXPECT_EQ(Gesucht(u"", u"<K a=\"1\"><Texte><T></T><T></T></Texte> </K>"),
              (Texte{u"<Texte><T></T><T></T></Texte>"}));
}

TEST(tqXMLSuche, AttributeOhneKinderNurSelbstgeschlossen) {
    EXPECT_EQ(Gesucht(u"H", u"<K a=\"1\"><H N=\"1\"></H></K>"), Texte());
    EXPECT_EQ(Gesucht(u"H", u"<K a=\"1\"><H N=\"1\"/></K>"), Texte{u"<H N=\"1\"/>"});
}

TEST(tqXMLSuche, NurLeerzeichenTrennen) {
    EXPECT_EQ(Gesucht(u"H", u"<K a=\"1\"><H\tN=\"1\" X=\"1\"/></K>"), Texte());
    EXPECT_EQ(Gesucht(u"H\tN=\"1\"", u"<K a=\"1\"><H\tN=\"1\" X=\"1\"/></K>"), Texte{u"<H\tN=\"1\" X=\"1\"/>"});
}

TEST(tqXMLSuche, HoechstensSovieleTreffer) {
    tqXML xml;
    const TextSicht text = u"<K a=\"1\"><H b=\"1\"/><H b=\"2\"/><H b=\"3\"/></K>";
    EXPECT_EQ(xml.SucheElemente(u"H", text, 2).size(), 2U);
    EXPECT_EQ(xml.SucheElemente(u"H", text, 3).size(), 3U);
    EXPECT_EQ(xml.SucheElemente(u"H", text).size(), 3U);
    EXPECT_EQ(xml.SucheElemente(u"H", text, 2).size(), 2U);
}

// A search that broke off deep inside leaves nothing behind for the next one.
TEST(tqXMLSuche, NachEinemFehlerVonVorn) {
    tqXML xml;
    EXPECT_TRUE(xml.SucheElemente(u"", u"<a b><c d><e f>").empty());
    EXPECT_EQ(xml.SucheElemente(u"", u"<K a=\"1\"><H b=\"1\"/></K>").size(), 1U);
}

TEST(tqXMLSuche, JederKurzeTextWieWoertlich) {
    for (std::size_t laenge = 0; laenge <= 7; ++laenge) {
        JederText(laenge, u"</ a>\"");
    }
    JederText(8, u"</ a>");
}

TEST(tqXMLSuche, ZufaelligeZeichenWieWoertlich) {
    std::mt19937 zufall(451);
    for (int lauf = 0; lauf < 40000; ++lauf) {
        Text text;
        for (std::size_t rest = 8 + zufall() % 40; rest > 0; --rest) {
            text += TextSicht(u"<<<</// aa>>>>\"")[zufall() % 15];
        }
        ErwarteWieWoertlich(text);
    }
}

// Tags joined at random: most of them nest far enough to matter.
TEST(tqXMLSuche, ZufaelligeTagsWieWoertlich) {
    const TextSicht tags[] = {u"<a>",  u"</a>",   u"<a/>",  u"<a b=\"\"/>", u"<a b=\"\">", u"<b ", u"<b>",
                              u"</b>", u"<b c/>", u" ",     u">",           u"<",          u"</",  u"/>",
                              u"a",    u"<a >",   u"</a >", u"<>",          u"</>"};
    std::mt19937 zufall(2013);
    for (int lauf = 0; lauf < 60000; ++lauf) {
        Text text;
        for (std::size_t rest = 2 + zufall() % 14; rest > 0; --rest) {
            text += tags[zufall() % std::size(tags)];
        }
        ErwarteWieWoertlich(text);
    }
}

// Well-formed trees, some with one character changed.
Text ZufallsBaum(std::mt19937& zufall, int tiefe) {
    const Text name(1, TextSicht(u"abc")[zufall() % 3]);
    const Text attribut = zufall() % 4 == 0 ? u"" : u" x=\"1\"";
    const std::size_t kinder = tiefe == 0 ? 0 : zufall() % 4;
    if (kinder == 0) {
        return u"<" + name + attribut + u"/>";
    }
    Text text = u"<" + name + attribut + u">";
    for (std::size_t i = 0; i < kinder; ++i) {
        text += ZufallsBaum(zufall, tiefe - 1);
    }
    return text + u"</" + name + u">";
}

TEST(tqXMLSuche, ZufaelligeBaeumeWieWoertlich) {
    std::mt19937 zufall(241);
    for (int lauf = 0; lauf < 10000; ++lauf) {
        Text text = ZufallsBaum(zufall, 4);
        ErwarteWieWoertlich(text);
        text[zufall() % text.size()] = TextSicht(u"</ a>")[zufall() % 5];
        ErwarteWieWoertlich(text);
    }
}

// --- Hostile texts: each would take hours if any search began again from the same place -----------------------------

Text Wiederholt(TextSicht stueck, std::size_t anzahl) {
    Text text;
    text.reserve(stueck.size() * anzahl);
    for (std::size_t i = 0; i < anzahl; ++i) {
        text += stueck;
    }
    return text;
}

TEST(tqXMLSuche, EineMillionEbenen) {
    const Text innen = Wiederholt(u"<a b=\"1\">", 1000000) + u"<x y=\"1\"/>" + Wiederholt(u"</a>", 1000000);
    EXPECT_EQ(Gesucht(u"K", u"<R a=\"1\"><K a=\"1\">" + innen + u"</K></R>").size(), 1U);
    EXPECT_EQ(Gesucht(u"K", u"<R a=\"1\"><K a=\"1\">" + innen + u"</a></K></R>").size(), 0U);
}

TEST(tqXMLSuche, LangeFolgenEinesStuecks) {
    for (const TextSicht stueck :
         {u"<", u">", u" ", u"</", u"<a>", u"<a ", u"<a b=\"1\">", u"</a>", u"<>", u"/>", u"< "}) {
        const Text folge = Wiederholt(stueck, 400000);
        EXPECT_TRUE(Gesucht(u"", folge).empty());
        EXPECT_TRUE(Gesucht(u"", folge + u" ").empty());
        EXPECT_TRUE(Gesucht(u"", folge + u">").empty());
    }
}

TEST(tqXMLSuche, EineMillionKinderOhneLeerzeichenDazwischen) {
    const Text kinder = Wiederholt(u"<a></a>", 1000000);
    EXPECT_EQ(Gesucht(u"", u"<K a=\"1\">" + kinder + u"</K> ").size(), 1000000U);
    EXPECT_EQ(Gesucht(u"", u"<K a=\"1\">" + kinder + u"</K>").size(), 0U);
    EXPECT_EQ(Gesucht(u"", u"<K a=\"1\">" + Wiederholt(u"<a/>", 1000000) + u"</K>").size(), 1000000U);
}

TEST(tqXMLSuche, EineMillionElementeNebeneinander) {
    EXPECT_EQ(Gesucht(u"a", Wiederholt(u"<k b=\"1\"><a b=\"1\"/></k>", 1000000)).size(), 1000000U);
}

// --- Name, attribute, document ---------------------------------------------------------------------------------------

TEST(tqXMLName, Faelle) {
    const std::pair<TextSicht, TextSicht> faelle[] = {
        {u"<H N=\"1\"/>", u"H"}, {u"<H></H>", u""},   {u"<H/>", u""},    {u"<H/> ", u"H/"},
        {u"<H> ", u"H"},         {u"< H>", u""},      {u"", u""},        {u"H N", u""},
        {u"H N>", u""},          {u"<H N", u""},      {u"x<H N>", u"H"}, {u"<Kapitel N>", u"Kapitel"},
        {u"<H\tN=\"1\"/>", u""}, {u"<a><b c>", u"a"},
    };
    for (const auto& [element, name] : faelle) {
        EXPECT_EQ(tqXML::getName(element), name) << std::string(element.begin(), element.end());
    }
}

struct Attributfall {
    TextSicht Name;
    TextSicht Element;
    TextSicht Wert;
};

TEST(tqXMLAttribut, Faelle) {
    const Attributfall faelle[] = {
        {u"A", u"<V N=\"1\" A=\"x\" E=\"3\"/>", u"x"},
        {u"A", u"<V NA=\"y\" A=\"x\"/>", u"y"}, // the end of a longer name
        {u"A", u"<V A=\"a&amp;b\"/>", u"a&amp;b"},
        {u"A", u"<V N=\"A=\" A=\"x\"/>", u" A="}, // found inside of the earlier value, up to its quote
        {u"A", u"<V N=\"1\"/>", u""},
        {u"A", u"<V N=\"1\"><W A=\"x\"/></V>", u""}, // behind the first '>'
        {u"A", u"<V A=><W B=\"x\"/></V>", u"x"},     // the quotes may stand behind it
        {u"A", u"<V A=\"x", u""},                    // no '>'
        {u"A", u"<V A=\"x>", u""},                   // no second quote
        {u"A", u"<V A=x>", u""},
        {u"A", u"<V A='x'>", u""},
        {u"A", u"<V A=\"\"/>", u""},
        {u"A", u"<V A =\"x\"/>", u""}, // not followed by '='
        {u"A", u"<V AA=\"x\"/>", u"x"},
        {u"AB", u"<V AAB=\"x\"/>", u"x"},
        {u"A", u"<V A=   \"x\"/>", u"x"},
        {u"", u"<V A=\"x\"/>", u"x"}, // the first '='
        {u"", u"<V/>", u""},
        {u"A", u"", u""},
        {u">A", u"<V>A=\"x\">", u"x"}, // begins at the first '>', not behind it
        {u"A", u"<V>A=\"x\">", u""},
    };
    for (const auto& [name, element, wert] : faelle) {
        EXPECT_EQ(tqXML::getAttribut(name, element), wert) << std::string(element.begin(), element.end());
    }
}

TEST(tqXMLDokument, SchreibenWirftDieDeklarationWeg) {
    const std::pair<TextSicht, TextSicht> faelle[] = {
        {u"<?xml version=\"1.0\"?><K/>", u"<K/>"},
        {u"<?xml?>\r\n  <K/>\r\n", u"<K/>\r\n"},
        {u"<K/>", u"<K/>"},
        {u" <K/>", u" <K/>"},
        {u"text?>text<K/>", u"<K/>"},
        {u"<?xml?>", u""},
        {u"<?xml?>text", u""},
        {u"<a?><b?><c/>", u"<b?><c/>"},
        {u"", u""},
    };
    tqXML xml;
    EXPECT_EQ(xml.DocumentElement(), u"");
    for (const auto& [text, dokument] : faelle) {
        xml.DocumentElement(text);
        EXPECT_EQ(xml.DocumentElement(), dokument);
    }
}

TEST(tqXMLDokument, SucheLaesstDasDokumentStehen) {
    tqXML xml;
    xml.DocumentElement(u"<K/>");
    xml.SucheElemente(u"", u"<a b=\"1\"><c d=\"1\"/></a>");
    EXPECT_EQ(xml.DocumentElement(), u"<K/>");
}

// --- Writing ---------------------------------------------------------------------------------------------------------

TEST(tqXMLSchreiben, ElementMitAttributen) {
    Text element = tqXML::createElement(u"X");
    EXPECT_EQ(element, u"<X/>");
    tqXML::setAttribute(u"a", u"1", element);
    tqXML::setAttribute(u"b", u"2", element);
    EXPECT_EQ(element, u"<X a=\"1\" b=\"2\"/>");
}

TEST(tqXMLSchreiben, AmEndeEinesGroesserenTextes) {
    Text ausgabe = u"<R>";
    for (const TextSicht wert : {u"1", u"2"}) {
        tqXML::createElement(u"X", ausgabe);
        tqXML::setAttribute(u"a", wert, ausgabe);
        tqXML::setAttribute(u"b", u"", ausgabe);
    }
    EXPECT_EQ(ausgabe, u"<R><X a=\"1\" b=\"\"/><X a=\"2\" b=\"\"/>");
}

TEST(tqXMLSchreiben, FuenfErsetzungenInDerReihenfolge) {
    Text element = tqXML::createElement(u"X");
    tqXML::setAttribute(u"a", u"&<>'\"", element);
    EXPECT_EQ(element, u"<X a=\"&amp;&lt;&gt;&apos;&quot;\"/>");
    EXPECT_EQ(tqXML::ConvertStringToXMLString(u"&<>'\""), u"&amp;&lt;&gt;&apos;&quot;");
    EXPECT_EQ(tqXML::ConvertStringToXMLString(u"&amp;"), u"&amp;amp;");
}

TEST(tqXMLSchreiben, SchlussUndLeerzeichenWieVorgefunden) {
    const std::pair<TextSicht, TextSicht> faelle[] = {
        {u"<X />", u"<X a=\"1\"/>"}, {u"<X>", u"< a=\"1\"X>"}, {u"/>", u" a=\"1\"/>"}, {u" /> ", u" / a=\"1\"> "}};
    for (const auto& [vorher, nachher] : faelle) {
        Text element(vorher);
        tqXML::setAttribute(u"a", u"1", element);
        EXPECT_EQ(element, nachher);
    }
}

TEST(tqXMLSchreiben, ZuKurzesElementIstEinLaufzeitFehler) {
    for (const TextSicht kurz : {u"", u">"}) {
        Text element(kurz);
        EXPECT_THROW(tqXML::setAttribute(u"a", u"1", element), LaufzeitFehler);
    }
}

TEST(tqXMLSchreiben, ZeilenendeUndTabulatorEntfallen) {
    Text element = tqXML::createElement(u"X");
    tqXML::setAttribute(u"a", u"1\r\n2\t3", element);
    EXPECT_EQ(element, u"<X a=\"123\"/>");
}

// Code page 1252: each unit that stands for one of the codes 128 to 159, in their order; codes without a character of
// their own stand as themselves.
TEST(tqXMLSchreiben, AnsiCodesEntfallenBisAufDieHochkommas) {
    const TextSicht ansi =
        u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F"
        u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178";
    ASSERT_EQ(ansi.size(), 32U);
    EXPECT_EQ(tqXML::ConvertStringToXMLString(ansi), u"\u2018\u2019");
}

TEST(tqXMLSchreiben, JederCodeBis255) {
    for (char16_t zeichen = 0; zeichen < 256; ++zeichen) {
        const bool faelltWeg = zeichen < 32 || (zeichen >= 128 && zeichen <= 144) || (zeichen >= 147 && zeichen <= 159);
        const bool ersetzt = TextSicht(u"&<>'\"").find(zeichen) != TextSicht::npos;
        if (!ersetzt) {
            EXPECT_EQ(tqXML::ConvertStringToXMLString(Text(1, zeichen)), Text(faelltWeg ? 0 : 1, zeichen))
                << int(zeichen);
        }
    }
}

TEST(tqXMLSchreiben, AndereZeichenBleiben) {
    for (const TextSicht zeichen :
         {u"\u0100", u"\u0151", u"\u0154", u"\u2017", u"\u201B", u"\u4E00", u"\uFFFD", u"\uD7FF", u"\uE000"}) {
        EXPECT_EQ(tqXML::ConvertStringToXMLString(zeichen), zeichen);
    }
}

TEST(tqXMLSchreiben, CharactersThatXmlCannotHoldAreDropped) {
    const std::pair<TextSicht, TextSicht> faelle[] = {
        {u"a\U0001F600b", u"a\U0001F600b"}, // a pair of surrogates is one character
        {u"a\U0010FFFFb", u"a\U0010FFFFb"}, // U+FFFE and U+FFFF are meant, not those of the higher planes
        {u"a\xD83D"                         // a high one without its low one
         u"b",
         u"ab"},
        {u"a\xDE00" // a low one without its high one
         u"b",
         u"ab"},
        {u"\xDE00\xD83D", u""},                 // the wrong way round
        {u"\xD83D\xD83D\xDE00", u"\U0001F600"}, // the second one has its other half
        {u"\xD83D<\xDE00", u"&lt;"},            // a character between the halves parts them
        {u"a\uFFFE\uFFFFb", u"ab"},
    };
    for (const auto& [text, erwartet] : faelle) {
        EXPECT_EQ(tqXML::ConvertStringToXMLString(text), erwartet);
        Text element = tqXML::createElement(u"X");
        tqXML::setAttribute(u"a", text, element);
        EXPECT_EQ(element, u"<X a=\"" + Text(erwartet) + u"\"/>");
    }
}

TEST(tqXMLSchreiben, TypografischeHochkommasWerdenNurImAttributErsetzt) {
    EXPECT_EQ(tqXML::ConvertStringToXMLString(u"l\u2019a\u2018b\u0091c\u0092d"), u"l\u2019a\u2018b\u0091c\u0092d");
    Text element = tqXML::createElement(u"X");
    tqXML::setAttribute(u"a", u"l\u2019a\u2018b\u0091c\u0092d", element);
    EXPECT_EQ(element, u"<X a=\"l&apos;a&apos;b&apos;c&apos;d\"/>");
}

TEST(tqXMLSchreiben, AnhaengenAnDieAusgabe) {
    Text ausgabe = u"<T>";
    tqXML::ConvertStringToXMLString(u"a<b", ausgabe);
    EXPECT_EQ(ausgabe, u"<T>a&lt;b");
}

} // namespace
} // namespace zepholt
