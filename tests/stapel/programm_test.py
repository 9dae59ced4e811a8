#!/usr/bin/python3
"""zepholt-stapel on real files: names of every kind, lists, shards, what remains of killed runs, what is done again.

programm_test.py BUILD-FOLDER
"""
import json
import os
import pathlib
import pty
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

import pruefung

BAU = pathlib.Path(sys.argv[1]).resolve()
QUELLE = pathlib.Path(__file__).resolve().parents[2]
KATALOG = QUELLE / "samples/katalog"
STAPEL = BAU / "zepholt-stapel"
os.environ["LC_ALL"] = "C.UTF-8"
os.environ.pop("DISPLAY", None)
FALSCH = 0
GEPRUEFT = 0
FEHLERHAFT = {"01S": (35, 6), "E1S": (38, 6)}  # errors and warnings of the faulty samples


def erwarte(name, ist, soll):
    global FALSCH, GEPRUEFT
    GEPRUEFT += 1
    if ist != soll:
        FALSCH += 1
        print(f"FALSE {name}: {str(ist)[:600]} instead of {str(soll)[:600]}")


def stapel(*argumente, programm=STAPEL, eingabe=b"", ordner=None, ziel=True):
    """Status, standard output, standard error of a call on the samples' catalogue."""
    befehl = [programm, *argumente, *(["-c", KATALOG] if ziel else [])]
    lauf = subprocess.run(befehl, input=eingabe, capture_output=True, cwd=ordner, check=False)
    return lauf.returncode, lauf.stdout.decode(), lauf.stderr.decode()


def tabelle(aus):
    with open(os.path.join(aus, "table.jsonl"), encoding="utf-8") as datei:
        return {pruefung.name_der_zeile(z): z for z in map(json.loads, datei)}


def ohne_uhr(pfad):
    with open(pfad, "rb") as datei:
        return re.sub(rb"<Date>.*?</Time>", b"", datei.read())


def muster(art):
    return QUELLE / f"samples/fehlerhaft.{art}"


def lege(ordner, name, vorlage=None):
    pfad = os.path.join(os.fsencode(ordner), name)
    os.makedirs(os.path.dirname(pfad), exist_ok=True)
    shutil.copy(vorlage or muster(name[-3:].decode().upper()), pfad)


NAMEN = [b"einfach.01S", b"klein.e1s", b"a b.01S", b" a  b .E1S", b"zwei\nZeilen.01S", b"\n.E1S", b'ein"Zeichen.01S',
         b'"eingefasst".E1S', b'vorn "und hinten" a.01S', b'a"b c.01S', b'a b"c d.E1S', b'"', b'""', b"*1.01S", b"*.E1S",
         b"a*b.01S", b"aXb.01S", b"a?b.01S", b"?.E1S", b".?.E1S", b"-o.01S", b"--help.01S", b"a=b.01S", b"=.E1S",
         b"file=x.01S", b"a'b.01S", b"$(touch x).01S", b"`x`;x|x&.E1S", b"a\\b.01S", b"\xff\xfe.E1S", b"a\xc3.01S",
         "Türen und Körbe.01S".encode(), "日本.E1S".encode(), b"\x01\x1b[2J.01S", b"\t.E1S", b"#.01S", b"~.01S", b"%s%n.01S",
         b"a.01S.xml/a.01S", b"tief/er/ und/\n/x y.E1S", b'tief"/*er?/ "/a.01S', b"L" * 247 + b".01S"]


def namen(ort):
    """Each name's protocol is that of the same file under a plain name."""
    ein, aus = os.path.join(ort, "ein"), os.path.join(ort, "aus")
    soll = {}
    for art in FEHLERHAFT:
        plan = os.path.join(ort, f"plan.{art}.xml")
        subprocess.run([BAU / "zepholt", f"file={muster(art)}", "dialog=de-", f"errorfile={plan}", f"catalog={KATALOG}"],
                       check=True)
        soll[art] = ohne_uhr(plan)
    for name in NAMEN:
        lege(ein, name, None if b"." in name else muster("01S"))
    # Names without an ending aren't found in a folder, a list may name them.
    liste = b"".join(os.path.join(os.fsencode(ein), n) + b"\0" for n in NAMEN)
    status, aus_, err = stapel("--list=-", "-0", "--base", ein, "-o", aus, eingabe=liste)
    erwarte("names: status", (status, aus_), (1, f"{len(NAMEN)} fehlerhaft\n"))
    erwarte("names: said", err, f"zepholt-stapel: {len(NAMEN)} Dateien, davon 0 fertig\n")
    erwarte("names: what stands there", pruefung.protokolle(aus), {n + b".xml" for n in NAMEN})
    for name in NAMEN:
        art = "E1S" if name[-4:].upper() == b".E1S" else "01S"
        erwarte(f"name {name}", ohne_uhr(os.path.join(os.fsencode(aus), name + b".xml")), soll[art])
    erwarte("names: rows", {n: (z["errors"], z["warnings"]) for n, z in tabelle(aus).items()},
            {n: FEHLERHAFT["E1S" if n[-4:].upper() == b".E1S" else "01S"] for n in NAMEN})
    # As a folder: the same but for those two.
    status, aus_, _ = stapel(ein, "-o", aus)
    erwarte("names in a folder", (status, aus_), (1, f"{len(NAMEN) - 2} fehlerhaft\n"))


def ohne_protokoll(ort):
    """What can't be tested has a row with its reason, and is tried again by the next call."""
    ein, aus = os.path.join(ort, "ein"), os.path.join(ort, "aus")
    lege(ein, b"gut.01S", QUELLE / "samples/sauber.01S")
    lege(ein, b"L" * 251 + b".01S")
    os.makedirs(os.path.join(aus, "ordner.01S.xml"))
    lege(ein, b"ordner.01S")
    namen_ = [b"gut.01S", b"L" * 251 + b".01S", b"ordner.01S", b"fehlt.01S", b"gut.01S/darunter.01S"]
    liste = os.path.join(ort, "liste")
    with open(liste, "wb") as datei:
        datei.write(b"".join(os.path.join(os.fsencode(ein), n) + b"\n" for n in namen_))
    for sprache, fehlt in (("de", "fehlt"), ("it", "manca")):
        status, _, err = stapel("-L", liste, "-b", ein, "-o", aus, "-l", sprache)
        zeilen = tabelle(aus)
        erwarte(f"without a protocol {sprache}: status", status, 2)
        erwarte("without a protocol: verdicts", {n: z["verdict"] for n, z in zeilen.items()},
                {n: "clean" if n == b"gut.01S" else "untested" for n in namen_})
    for name, grund in ((b"fehlt.01S", 1003), (b"L" * 251 + b".01S", 1005), (b"ordner.01S", 1005)):
        liste_codes = os.path.join(ort, "codes.xml")
        if not os.path.exists(liste_codes):
            subprocess.run([BAU / "zepholt", "file=*9", "dialog=it-", f"errorfile={liste_codes}", f"catalog={KATALOG}"],
                           check=True)
        text = zeilen[name]["reason"]
        with open(QUELLE / "src/errors/FehlerERLTexte.cpp", encoding="utf-8") as texte:
            block = texte.read().split(f"{{{grund}, ")[1].split("},")[0]
        erwarte(f"reason {grund}", text in block and bool(text), True)
    os.rmdir(os.path.join(aus, "ordner.01S.xml"))
    lege(ein, b"fehlt.01S")
    stapel("-L", liste, "-b", ein, "-o", aus)
    erwarte("tried again", {n: z["verdict"] for n, z in tabelle(aus).items()},
            {**{n: "untested" for n in namen_}, b"gut.01S": "clean", b"ordner.01S": "faulty", b"fehlt.01S": "faulty"})


def listen_und_teile(ort):
    ein, aus = os.path.join(ort, "ein"), os.path.join(ort, "aus")
    for i in range(40):
        lege(ein, b"%d/%d.01S" % (i % 4, i), QUELLE / "samples/sauber.01S")
    with open(os.path.join(ein, "nichts.txt"), "wb"):
        pass
    # Named twice, by a list and by its folder: one row.
    status, aus_, _ = stapel(os.path.join(ein, "0"), "--list", "-", "-o", os.path.join(ein, "aus"), "-b", ein,
                             eingabe=b"0/0.01S\n0/4.01S\n1/1.01S\n", ordner=ein)
    erwarte("a file named twice", (status, aus_, len(tabelle(os.path.join(ein, "aus")))), (0, "11 in Ordnung\n", 11))
    erwarte("without a base: the whole path", stapel(os.path.join(ein, "0"), os.path.join(ein, "1"), "-o", aus + "2")[0], 0)
    erwarte("without a base: the tree", pruefung.protokolle(aus + "2"),
            {os.fsencode(ein)[1:] + b"/%d/%d.01S.xml" % (i % 4, i) for i in range(40) if i % 4 < 2})
    teile = []
    for i in (1, 2, 3):
        vorher = pruefung.protokolle(aus) if os.path.isdir(aus) else set()
        status, aus_, _ = stapel(ein, "-o", aus, "-s", f"{i}/3")
        erwarte(f"shard {i}", (status, aus_, os.path.exists(os.path.join(aus, "table.csv"))), (0, "", False))
        teile.append(pruefung.protokolle(aus) - vorher)
    erwarte("shards: all together", (sum(map(len, teile)), len(set().union(*teile)), min(map(len, teile)) > 4), (40, 40, True))
    vorher = {n: os.stat(os.path.join(os.fsencode(aus), n)).st_mtime_ns for n in pruefung.protokolle(aus)}
    status, aus_, err = stapel(ein, "-o", aus, "-l", "fr")
    erwarte("nothing left", (status, aus_, err), (0, "40 en ordre\n", "zepholt-stapel: 40 fichiers, dont 40 terminés\n"))
    erwarte("nothing done again", {n: os.stat(os.path.join(os.fsencode(aus), n)).st_mtime_ns for n in vorher}, vorher)
    os.unlink(os.path.join(aus, "2/6.01S.xml"))
    erwarte("names of what is left", stapel(ein, "-o", aus, "-n"), (0, "2/6.01S\0", ""))
    erwarte("one left", stapel(ein, "-o", aus)[2], "zepholt-stapel: 40 Dateien, davon 39 fertig\n")
    with open(os.path.join(aus, "2/6.01S.xml"), "r+b") as datei:
        datei.truncate(100)
    status, aus_, _ = stapel(ein, "-o", aus)
    erwarte("a damaged protocol", (status, aus_, "abgeschnitten" in tabelle(aus)[b"2/6.01S"]["reason"]),
            (2, "39 in Ordnung, 1 nicht geprüft\n", True))


def anderes(ort):
    """Mode, language, pages; an output folder and a catalogue whose names the command line can't say."""
    ein, aus, katalog = (os.path.join(ort, n) for n in ("ein", 'zu"erst *?', 'kat"alog a'))
    lege(ein, b"a b.01S")
    lege(ein, b'"x.E1S', QUELLE / "samples/sauber.E1S")
    shutil.copytree(KATALOG, katalog)
    status, aus_, _ = stapel(ein, "-o", aus, "-c", katalog, "-m", "I", "-l", "it", "-p", ziel=False)
    erwarte("pages: status", (status, aus_), (1, "1 in ordine, 1 con errori\n"))
    erwarte("pages: what stands there", pruefung.protokolle(aus), {n + e for n in (b"a b.01S", b'"x.E1S') for e in (b".xml", b".html")})
    with open(os.path.join(aus, "a b.01S.xml"), encoding="latin-1") as datei:
        text = datei.read()
    erwarte("mode and language", ("<Mode>I</Mode>" in text, "E=\"B\"" in text, "non è" in text), (True, False, True))
    with open(os.path.join(aus, "index.html"), encoding="utf-8") as datei:
        seite = datei.read()
    erwarte("index", re.findall(r'<a href="([^"]*)">([^<]*)</a>', seite), [("./%22x.E1S.html", "&quot;x.E1S"), ("./a%20b.01S.html", "a b.01S")])


def wiederholungen(ort):
    """A test that dies is made again; one that always dies has that as its reason."""
    ein = os.path.join(ort, "ein")
    for name in (b"a.01S", b"b.01S"):
        lege(ein, name, QUELLE / "samples/sauber.01S")
    programme = pathlib.Path(ort) / "programme"
    programme.mkdir()
    shutil.copy(STAPEL, programme)
    os.symlink(BAU / "zepholt-bericht", programme / "zepholt-bericht")
    (programme / "zepholt").write_text(f"""#!/bin/sh
case $1 in
*/b.01S) echo x >>{ort}/versuche; [ $(wc -l <{ort}/versuche) -gt 2 ] || kill -9 $$ ;;
esac
exec {BAU}/zepholt "$@"
""")
    (programme / "zepholt").chmod(0o755)
    for wiederholungen_, soll in ((0, "untested"), (1, "clean")):
        aus = os.path.join(ort, f"aus{wiederholungen_}")
        status, _, _ = stapel(ein, "-o", aus, "-r", str(wiederholungen_), programm=programme / "zepholt-stapel")
        zeile = tabelle(aus)[b"b.01S"]
        erwarte(f"{wiederholungen_} times again", (status, zeile["verdict"]), (2 if soll == "untested" else 0, soll))
        if soll == "untested":
            erwarte("dead: reason", zeile["reason"], "Die Prüfung wurde beendet (Signal 9)")


def reste(ort):
    """What killed processes left goes away; what may belong to somebody stays."""
    ein, aus = os.path.join(ort, "ein"), os.path.join(ort, "aus")
    lege(ein, b"o/a.01S", QUELLE / "samples/sauber.01S")
    os.makedirs(os.path.join(aus, "o"))
    os.makedirs(os.path.join(aus, pruefung.ARBEITSORDNER))
    tot = subprocess.Popen(["true"])
    tot.wait()
    rechner = os.uname().nodename
    alt = {f"o/.zepholt-{tot.pid}-0.tmp": False, f".zepholt-{tot.pid}-12.tmp": False, f"o/.zepholt-{os.getpid()}-0.tmp": True,
           "o/.zepholt-x-0.tmp": True, f"{pruefung.ARBEITSORDNER}/{rechner}-{tot.pid}.E1S": False,
           f"{pruefung.ARBEITSORDNER}/{rechner}-{os.getpid()}.01S": True, f"o/{rechner}-{tot.pid}.xml": True}
    jung = f".zepholt-{tot.pid}-1.tmp"
    for name in [*alt, jung]:
        with open(os.path.join(aus, name), "wb"):
            pass
        if name != jung:
            os.utime(os.path.join(aus, name), (1, time.time() - 4000))
    stapel(ein, "-o", aus)
    erwarte("left-over files", {n: os.path.exists(os.path.join(aus, n)) for n in [*alt, jung]}, {**alt, jung: True})


def anzahl(aus):
    return len(pruefung.protokolle(aus)) if os.path.isdir(aus) else 0


def abbruch(ort):
    """Ctrl+C and its like: nothing goes on, nothing half is left, and the same call does the rest."""
    ein, aus = os.path.join(ort, "ein"), os.path.join(ort, "aus")
    for i in range(600):
        lege(ein, b"%d.01S" % i, QUELLE / "samples/sauber.01S")
    for nummer in (signal.SIGINT, signal.SIGTERM):
        lauf = subprocess.Popen([STAPEL, ein, "-o", aus, "-c", KATALOG], stderr=subprocess.PIPE, start_new_session=True)
        vorher = anzahl(aus)
        while lauf.poll() is None and anzahl(aus) < vorher + 5:
            time.sleep(0.005)
        lauf.send_signal(nummer)
        _, err = lauf.communicate()
        erwarte(f"ended by {nummer}", (lauf.returncode, b"Abgebrochen" in err), (128 + nummer, True))
        stand = anzahl(aus)
        time.sleep(0.3)
        erwarte("nothing goes on", anzahl(aus), stand)
        erwarte("ended before its time", stand < 600, True)
    erwarte("the rest", stapel(ein, "-o", aus)[:2], (0, "600 in Ordnung\n"))


def am_terminal(ort):
    """A bar with the time left on a terminal."""
    ein, aus = os.path.join(ort, "ein"), os.path.join(ort, "aus")
    for i in range(300):
        lege(ein, b"%d.01S" % i, QUELLE / "samples/sauber.01S")
    haupt, neben = pty.openpty()
    lauf = subprocess.Popen([STAPEL, ein, "-o", aus, "-c", KATALOG], stdout=subprocess.DEVNULL, stderr=neben)
    os.close(neben)
    gesagt = b""
    try:
        while stueck := os.read(haupt, 65536):
            gesagt += stueck
    except OSError:
        pass  # the other end is closed
    erwarte("terminal: status", lauf.wait(), 0)
    erwarte("terminal: bar", re.search(rb"\r\[#* *\] \d+ von 300  \d+ %  \d+/s  noch (\?|\d+:\d\d:\d\d)", gesagt) is not None, True)
    os.close(haupt)


def vorlagen(ort):
    """The commands of the documents for Kubernetes and HTCondor, by themselves: all shards, then the rest."""
    ein = os.path.join(ort, "eingang")
    for i in range(60):
        lege(ein, b"%d.01S" % i, QUELLE / "samples/sauber.01S")
    os.symlink(KATALOG, os.path.join(ort, "vlt"))
    pfad = {**os.environ, "PATH": f"{BAU}:{os.environ['PATH']}"}
    # Three shards are enough here.
    kubernetes = (QUELLE / "stapel/kubernetes.yaml").read_text()
    teil, rest = re.findall(r"- ((?:exec )?zepholt-stapel .*)", kubernetes.replace("/tausch", ort).replace("/20", "/3"))
    condor = (QUELLE / "stapel/htcondor.sub").read_text()
    argumente = re.search(r"(?m)^arguments = (.*)", condor)[1].replace("/srv", ort).replace("$(request_cpus)", "2")
    for name, befehle in (("kubernetes", [f"JOB_COMPLETION_INDEX={i}; {teil}" for i in range(3)]),
                          ("htcondor", ["zepholt-stapel " + argumente.replace("$INT(shard)", str(i + 1)).replace("$(shards)", "3")
                                        for i in range(3)])):
        ziel = os.path.join(ort, "protokolle")
        shutil.rmtree(ziel, ignore_errors=True)
        erwarte(f"{name}: shards", [subprocess.run(["sh", "-c", b], env=pfad, capture_output=True, check=False).returncode for b in befehle],
                [0] * 3)
        erwarte(f"{name}: all are there", anzahl(ziel), 60)
        ende = subprocess.run(["sh", "-c", rest], env=pfad, capture_output=True, check=False)
        erwarte(f"{name}: the table", (ende.returncode, ende.stdout), (0, b"60 in Ordnung\n"))


def falsche_aufrufe(ort):
    for argumente, sagt in (((), "ein Ordner oder --list"), (("x",), "--output"), (("/", "-o", "x"), "--catalog"),
                            (("-x",), "Falsche Option: x"), (("-l", "en"), "Unbekannte Sprache: en"), (("-m", "e"), "e"),
                            (("-s", "3/2"), "3/2"), (("-s", "0/2"), "0/2"), (("-j", "0"), "0"), (("-r", "-1"), "-1"),
                            (("/gibt es nicht", "-o", "x", "-c", "/"), "/gibt es nicht"), (("/", "-o", "x", "-c", "/kein"), "/kein"),
                            (("-L", "/kein", "-o", "x", "-c", "/"), "/kein"),
                            (("/etc/passwd", "-b", "/tmp", "-o", "x", "-c", "/"), "Liegt nicht unter /tmp/: /etc/passwd")):
        status, aus, err = stapel(*argumente, ordner=ort, ziel=False)
        erwarte(f"call {argumente}", (status, aus, sagt in err, err.count("\n")), (64, "", True, 1))
    for sprache in ("de", "fr", "it"):
        status, aus, err = stapel("-l", sprache, "--help", ziel=False)
        erwarte(f"help {sprache}", (status, err, aus.count("\n  -") == 14 and aus.startswith("zepholt-stapel")), (0, "", True))


def main():
    if not (BAU / "zepholt").exists():
        sys.exit(__doc__)
    for probe in (namen, ohne_protokoll, listen_und_teile, anderes, wiederholungen, reste, abbruch, am_terminal, vorlagen, falsche_aufrufe):
        with tempfile.TemporaryDirectory(prefix="zepholt-stapel-") as ort:
            probe(ort)
    print(f"{GEPRUEFT} checks, {FALSCH} false")
    return 1 if FALSCH else 0


if __name__ == "__main__":
    sys.exit(main())
