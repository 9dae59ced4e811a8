#!/usr/bin/env python3
"""What tools/mutanten.py changes in a source text, and what it leaves alone."""
import importlib.util
import pathlib
import unittest

WERKZEUG = pathlib.Path(__file__).resolve().parents[2] / "tools" / "mutanten.py"
spec = importlib.util.spec_from_file_location("mutanten", WERKZEUG)
mutanten = importlib.util.module_from_spec(spec)
spec.loader.exec_module(mutanten)

QUELLE = '''#include "a/b18.h"
// if (18) is no code
void PruefeX() {
    const std::int32_t zahl = ZahlFeld(8, 6, Zwingend); // X:3
    if (zahl >= 18 && !Hat(u"AB")) {
        return FehlerMelden(4601);
    }
    zeichen = u'9';
    "a text with 7 == 7";
}
'''


def aenderungen(art, quelle=QUELLE):
    """The lines that a kind makes of the source."""
    return [mutanten.zeilen_des(quelle, mutant)[1] for mutant in mutanten.mutanten("x.cpp", quelle, [art])]


class MutantenTest(unittest.TestCase):
    def test_each_number_goes_up_and_down_by_one(self):
        self.assertEqual(aenderungen("zahl"), [
            "const std::int32_t zahl = ZahlFeld(9, 6, Zwingend); // X:3",
            "const std::int32_t zahl = ZahlFeld(7, 6, Zwingend); // X:3",
            "const std::int32_t zahl = ZahlFeld(8, 7, Zwingend); // X:3",
            "const std::int32_t zahl = ZahlFeld(8, 5, Zwingend); // X:3",
            'if (zahl >= 19 && !Hat(u"AB")) {',
            'if (zahl >= 17 && !Hat(u"AB")) {',
            "return FehlerMelden(4602);",
            "return FehlerMelden(4600);",
        ])

    def test_operators_change_into_their_neighbour(self):
        self.assertEqual(aenderungen("zeichen"), [
            'if (zahl > 18 && !Hat(u"AB")) {',
            'if (zahl >= 18 || !Hat(u"AB")) {',
            'if (zahl >= 18 && Hat(u"AB")) {',
        ])

    def test_words_change_into_their_likes(self):
        self.assertEqual(aenderungen("wort"), [
            "const std::int32_t zahl = ZahlFeld(8, 6, Freiwillig); // X:3",
            "const std::int32_t zahl = ZahlFeld(8, 6, Erwartet); // X:3",
        ])

    def test_a_condition_is_negated(self):
        self.assertEqual(aenderungen("bedingung"), ['if (!(zahl >= 18 && !Hat(u"AB"))) {'])

    def test_letters_move_on_and_texts_lose_an_end(self):
        self.assertEqual(aenderungen("buchstabe"), [
            "zeichen = u':';",
            'if (zahl >= 18 && !Hat(u"B")) {',
            'if (zahl >= 18 && !Hat(u"A")) {',
        ])

    def test_statements_are_left_out_but_not_declarations(self):
        self.assertEqual(aenderungen("anweisung"), ["FehlerMelden(4601);", ";"])

    def test_a_change_takes_one_place_and_leaves_the_lines_where_they_are(self):
        for mutant in mutanten.mutanten("x.cpp", QUELLE, list(mutanten.ARTEN)):
            neu = mutanten.veraendert(QUELLE, mutant)
            self.assertEqual(neu.count("\n"), QUELLE.count("\n"))
            self.assertEqual(neu[:mutant.von], QUELLE[:mutant.von])
            self.assertTrue(neu.endswith(QUELLE[mutant.bis:]))

    def test_one_build_holds_the_changes_that_can_be_chosen(self):
        alle = [m for m in mutanten.mutanten("x.cpp", QUELLE, ["zahl", "bedingung", "anweisung"]) if m.wahl]
        text = mutanten.mit_wahl(QUELLE, {mutant: nummer for nummer, mutant in enumerate(alle, 1)})
        self.assertIn("ZahlFeld((zepholt_mutant() == 1 ? 9 : zepholt_mutant() == 2 ? 7 : 8), ", text)
        self.assertIn("if ((zepholt_mutant() == 9) != bool(zahl >= (zepholt_mutant() == 5 ? 19 : ", text)
        self.assertIn("if (zepholt_mutant() != 10) { zeichen = u'9'; }", text)
        self.assertEqual(text.count("\n"), QUELLE.count("\n"))

    def test_a_known_change_is_known_by_its_line_without_comment_and_alignment(self):
        eintraege = {("x.cpp", "Lies(2, 3);", "Lies(2, 4);"), ("x.cpp", "Lies(9);", "*")}
        self.assertTrue(mutanten.ist_bekannt(eintraege, "x.cpp", "Lies(2, 3);   // X:2", "Lies(2, 4);   // X:2"))
        self.assertTrue(mutanten.ist_bekannt(eintraege, "x.cpp", "Lies(9);", "Lies(8);"))
        self.assertFalse(mutanten.ist_bekannt(eintraege, "x.cpp", "Lies(2, 3);", "Lies(2, 2);"))
        self.assertFalse(mutanten.ist_bekannt(eintraege, "y.cpp", "Lies(2, 3);", "Lies(2, 4);"))


if __name__ == "__main__":
    unittest.main()
