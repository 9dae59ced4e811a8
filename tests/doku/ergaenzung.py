#!/usr/bin/env python3
"""The completion of bash and zsh, by real presses of the tab key in a shell at a terminal of its own."""
import os
import pathlib
import pty
import re
import select
import shutil
import subprocess
import sys
import tempfile
import time

from doku import QUELLE

PROMPT = "bereit: "
ENDE = "@@"
VORSPANN = {
    "bash": ". /usr/share/bash-completion/bash_completion; . {quelle}/packaging/completion/zepholt.bash; "
            "bind 'set bell-style none' 'set enable-bracketed-paste off'; PS1='{prompt}'",
    "zsh": "fpath=({quelle}/packaging/completion $fpath); autoload -Uz compinit; compinit -u -d {ort}/zcompdump; "
           "unsetopt zle_bracketed_paste auto_menu always_last_prompt prompt_sp beep 2>/dev/null; PS1='{prompt}'",
}
RUFEN = {"bash": ["bash", "--norc", "--noprofile", "-i"], "zsh": ["zsh", "-f", "-i"]}
# The example files of the folder: Bau.01S, Los.E1S, bild.png, p.xml, the folder katalog.
EINDEUTIG = [
    # What is typed, and what stands there behind a press of the tab key.
    ("zepholt fi", "zepholt file="),
    ("zepholt FI", "zepholt file="),
    ("zepholt ca", "zepholt catalog="),
    ("zepholt mode=E e", "zepholt mode=E errorfile="),
    ("zepholt file=B", "zepholt file=Bau.01S "),
    ("zepholt File=L", "zepholt File=Los.E1S "),
    ("zepholt errorfile=p", "zepholt errorfile=p.xml "),
    ("zepholt catalog=ka", "zepholt catalog=katalog/"),
    ("zepholt dialog=d", "zepholt dialog=de"),
    ("zepholt-bericht ver", "zepholt-bericht verdict "),
    ("zepholt-bericht --cat", "zepholt-bericht --catalog="),
    ("zepholt-bericht table p", "zepholt-bericht table p.xml "),
    ("zepholt-bericht html p.xml L", "zepholt-bericht html p.xml Los.E1S "),
]
AUSWAHL = [
    # What is typed, and the words that two presses offer.
    ("zepholt ", {"file=", "dialog=", "errorfile=", "catalog=", "mode="}),
    ("zepholt file=x dialog=de ", {"errorfile=", "catalog=", "mode="}),
    ("zepholt dialog=", {"de", "fr", "it", "de-", "fr-", "it-"}),
    ("zepholt mode=", {"E", "I"}),
    ("zepholt-bericht ", {"html", "table", "csv", "jsonl", "sarif", "verdict", "batch", "summary", "code",
                          "fields", "test"}),
    ("zepholt-bericht csv -l ", {"de", "fr", "it"}),
]
GEPRUEFT = 0
FALSCH = 0


def erwarte(name, ist, soll):
    global GEPRUEFT, FALSCH
    GEPRUEFT += 1
    if ist != soll:
        FALSCH += 1
        print(f"FALSE {name}: {ist!r} instead of {soll!r}")


def ohne_ruecktaste(text):
    """The text as it stands on the screen when characters have been taken back."""
    zeichen = []
    for z in text:
        if z != "\b":
            zeichen.append(z)
        elif zeichen:
            zeichen.pop()
    return "".join(zeichen)


class Shell:
    """A shell at a terminal."""

    def __init__(self, name, ordner, ort):
        self.marke = 0
        umgebung = {"PATH": os.environ["PATH"], "HOME": str(ort), "TERM": "dumb", "LC_ALL": "C.UTF-8"}
        self.kind, self.ende = pty.fork()
        if self.kind == 0:
            os.chdir(ordner)
            os.execvpe(RUFEN[name][0], RUFEN[name], umgebung)
        self.schreiben(VORSPANN[name].format(quelle=QUELLE, ort=ort, prompt=PROMPT) + "\n")
        self.bereit()

    def schreiben(self, text):
        os.write(self.ende, text.encode())

    def lesen(self, genug, frist=120):
        """What comes until it is enough."""
        text = ""
        bis = time.monotonic() + frist
        while not genug(text) and time.monotonic() < bis:
            if select.select([self.ende], [], [], 0.1)[0]:
                text += os.read(self.ende, 4096).decode("utf-8", "replace")
        return re.sub(r"\x1b\[[0-9;?]*[A-Za-z]|\x07|\x1b[=>]", "", text)

    def bereit(self):
        """Lets a command say a number, and waits until it has done so and the shell asks for the next."""
        self.marke += 1
        self.schreiben(f"echo $(({self.marke}+70000))\n")
        soll = f"{self.marke + 70000}\r\n"
        self.lesen(lambda text: PROMPT in text.partition(soll)[2])

    def ergaenzt(self, text, mal=1):
        """What the shell shows after text and presses of the tab key: all of it stands in front of what is typed next.
        The line is then thrown away."""
        self.schreiben(text + "\t" * mal + ENDE)
        gezeigt = self.lesen(lambda gelesen: ENDE in gelesen)
        self.schreiben("\x15")
        self.bereit()
        return ohne_ruecktaste(gezeigt.split(ENDE)[0])

    def beenden(self):
        self.schreiben("\x15exit\n")
        os.close(self.ende)
        os.waitpid(self.kind, 0)


def pruefen(name):
    with tempfile.TemporaryDirectory() as ort:
        ordner = pathlib.Path(ort, "bau")
        (ordner / "katalog").mkdir(parents=True)
        for datei in ("Bau.01S", "Los.E1S", "bild.png", "p.xml"):
            (ordner / datei).touch()
        shell = Shell(name, ordner, ort)
        for getippt, soll in EINDEUTIG:
            erwarte(f"{name} '{getippt}'", shell.ergaenzt(getippt).lstrip("\r\n"), soll)
        for getippt, soll in AUSWAHL:
            erwarte(f"{name} '{getippt}'", set(shell.ergaenzt(getippt, 2).replace(getippt, " ").replace(PROMPT, " ").split()), soll)
        shell.beenden()


def main():
    for name in VORSPANN:
        pruefen(name)
    print(f"{GEPRUEFT - FALSCH} right, {FALSCH} false")
    return 1 if FALSCH else 0


if __name__ == "__main__":
    sys.exit(main())
