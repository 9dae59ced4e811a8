#!/usr/bin/env bash
# The writers of exchange files and of chapter files: what they write, and that they refuse the rest with a message,
# status 1 and no file. werkzeuge_pruefen.sh BAUORDNER
set -uo pipefail
programme=$(cd "$1" && pwd)
ort=$(mktemp -d)
trap 'rm -rf "$ort"' EXIT
cd "$ort" || exit 1
fehler=0

klage() {
    echo "$*"
    fehler=1
}

# satz OUTPUT LINE...: the file made of these lines
satz() {
    local ausgabe=$1
    shift
    printf '%s\n' "$@" >beschreibung.txt
    "$programme/satzschreiber" beschreibung.txt "$ausgabe"
}

# satz_ist WHAT OUTPUT BYTES LINE...: BYTES in the notation of printf
satz_ist() {
    local was=$1 ausgabe=$2 erwartet=$3
    shift 3
    satz "$ausgabe" "$@" || klage "$was: refused"
    cmp <(printf "$erwartet") "$ausgabe" || klage "$was: other bytes"
}

# weigert WHAT MESSAGE COMMAND...: status 1, the message on standard error, and nothing written
weigert() {
    local was=$1 meldung=$2
    shift 2
    rm -rf ziel && mkdir ziel
    "$@" >ausgabe.txt 2>meldung.txt
    [ $? -eq 1 ] || klage "$was: status is not 1"
    grep -qF -- "$meldung" meldung.txt || klage "$was: message is '$(cat meldung.txt)'"
    [ -z "$(ls -A ziel)" ] || klage "$was: a file is left behind: $(ls ziel)"
}

# kapitel LINE...: chapter files in ziel/
kapitel() {
    printf '%s\n' "$@" >kapitel.txt
    "$programme/kapitelschreiber" kapitel kapitel.txt ziel
}

# --- satzschreiber
satz_ist "a field at its columns" a.01S "$(printf '%-41s2' 'G111   111001')\r\n" 'G2 2a=111 3=111001'
satz_ist "a plain column" a.01S "$(printf '%-41s2' 'G    x')\r\n" 'G2 6:x'
satz_ist "a raw record" a.01S 'a b\001\r\n\r\n' 'roh "a b\x01"' 'roh'
satz_ist "comments and empty lines" a.01S 'A\r\n' '# nothing' '' 'A # rest'
satz_ist "escapes" a.01S 'A"\\#\r\n' 'A 2:"\"\\#"'
satz_ist "code page 850" a.01S 'A\204\341\r\n' 'A 2:äß'
satz_ist "UTF-8" a.e1s 'A\xC3\xA4\xE2\x82\xAC\r\n' 'A 2:ä€'
satz_ist "a raw byte in UTF-8" a.E1S 'A\xFF\r\n' 'A 2:"\xFF"'
satz_ist "digits filled with zeros" a.01S "$(printf '%-41s%-21s000000000125' G2 5)\r\n" 'G5 2:2 19=#125'
satz_ist "the number of records" a.01S "A\r\n$(printf '%-45s0000000000002' Z)\r\n" 'A' 'Z 15=@anzahl'
satz_ist "the check digit" a.01S "$(printf '%-41s%-33s1234565' G 6)\r\n" 'G6 20=@lauf:123456'
satz_ist "a field of the newer interface" a.E1S "$(printf '%-41s%-126sW' B 7)\r\n" 'B7 24f=W'
satz_ist "an empty value" a.01S "$(printf '%-41s5' G)\r\n" 'G5 19='
weigert "an unknown field" "beschreibung.txt:2: the record has no field '99'" satz ziel/a.01S 'A' 'A 99=1'
weigert "a field of the other interface" "has no field '24f'" satz ziel/a.01S 'G6 24f=x'
weigert "a value too long" 'field 2a has 3 columns' satz ziel/a.01S 'G2 2a=1234'
weigert "a character that code page 850 has not" "code page 850 has no '€'" satz ziel/a.01S 'A 2:€'
weigert "an open quotation mark" 'beschreibung.txt:1: a quotation mark is not closed' satz ziel/a.01S 'A 2:"x'
weigert "a bad byte" 'two hexadecimal digits' satz ziel/a.01S 'A 2:"\xg1"'
weigert "neither field nor column" 'is neither FELD=WERT nor SPALTE:WERT' satz ziel/a.01S 'A xyz'
weigert "a column 0" 'a column must be a whole number from 1' satz ziel/a.01S 'A 0:x'
weigert "no record type" 'is no record type' satz ziel/a.01S 'ABC'
printf 'A 2:\xE4\n' >latin.txt
weigert "a description in another encoding" 'is not valid UTF-8' "$programme/satzschreiber" latin.txt ziel/a.01S
weigert "no description" 'cannot be read' "$programme/satzschreiber" fehlt.txt ziel/a.01S
weigert "no arguments" 'two arguments are needed' "$programme/satzschreiber"
weigert "a folder that is not there" 'ziel/fehlt/a.01S: cannot be written: there is no folder ziel/fehlt/' \
    satz ziel/fehlt/a.01S A
mkdir ordner.01S
weigert "a folder of that name" 'ordner.01S: cannot be written: it is a folder' satz ordner.01S A
weigert "a device" '/dev/null: cannot be written: it is no ordinary file' satz /dev/null A
weigert "a name that ends in a path separator" 'ziel/: cannot be written: it names no file' satz ziel/ A
weigert "a name that the system refuses" "cannot be written: File name too long" satz "ziel/$(printf '%0300d' 1).01S" A
"$programme/satzschreiber" --help | grep -q '^satzschreiber BESCHREIBUNG AUSGABE' || klage "satzschreiber: no help"

# --- kapitelschreiber
mkdir -p ziel
kapitel 'kapitel 241 2013 fr "Le & l" a=7 zusatz=Z' 'h 100 x' 'u 1 w=1-199 x y' 'v 1 a=G e=31' 'v 2' 'u 2' 'h 200' 'text T' ||
    klage "a chapter: refused"
cat >erwartet.xml <<'XML'
<Kapitel N="241" S="2" V="2013" A="7" T="Le &amp; l" Z="Z"><H N="100" X="1"><U N="1" W="1199" X="1" Y="1"><V N="1" E="31" A="G"/><V N="2"/></U><U N="2"/></H><H N="200"/><Texte><T>T</T></Texte></Kapitel>
XML
python3 - <<'PYTHON' || klage "a chapter: other content"
datei = open("ziel/N132241.qvm", "rb").read()
rest, tabelle = datei[30:], {}
while rest[0] != 32:
    ende = rest.index(b"\n", 1)
    tabelle[rest[0]] = rest[1:ende]
    rest = rest[ende + 1:]
xml = b"".join(tabelle[b] if b < 32 else bytes([b]) for b in rest[1:])
assert xml == open("erwartet.xml", "rb").read().rstrip(b"\n"), xml
assert datei[:30] == b"CF1120132241%09d%09d" % (len(datei), len(xml) + 43)  # behind the XML declaration, datei[:30]
PYTHON

rm -f ziel/*
kapitel 'kapitel 241 1998 de A' 'h 1' 'kapitel 242 2088 it B' || klage "two chapters: refused"
[ "$(ls ziel | tr '\n' ' ')" = 'N883242.qvm N981241.qvm ' ] || klage "two chapters: $(ls ziel)"
"$programme/kapitelschreiber" sammeln alle.vlt ziel/N981241.qvm ziel/N883242.qvm || klage "collecting: refused"
cmp alle.vlt <(cat ziel/N981241.qvm ziel/N883242.qvm) || klage "collecting: other bytes"

# A large chapter shrinks, and its title stays within what the list of chapters reads.
rm -f ziel/*
{
    echo 'kapitel 241 2013 de "Ein Titel"'
    for h in $(seq 100 399); do
        echo "h $h"
        for u in 0 1 2 3; do printf 'u %s\nv 0\nv 1 e=31\n' $u; done
    done
} >gross.txt
"$programme/kapitelschreiber" kapitel gross.txt ziel || klage "a large chapter: refused"
[ "$(stat -c %s ziel/N131241.qvm)" -lt 20000 ] || klage "a large chapter: $(stat -c %s ziel/N131241.qvm) bytes"
head -c 1000 ziel/N131241.qvm | LC_ALL=C grep -qaF 'T="Ein Titel" Z=""><' || klage "a large chapter: no title in its begin"
"$programme/zepholt" 'file=*1' dialog=de- "errorfile=$ort/liste.xml" catalog=ziel
grep -q '<Worksection N="241" V="2013" A="0" T="Ein Titel"/>' liste.xml || klage "a large chapter: not listed"

weigert "a line before the first chapter" "kapitel.txt:1: the first line must be 'kapitel'" kapitel 'h 1'
weigert "a sub-position without a main one" "'u' can't stand here" kapitel 'kapitel 241 2013 de A' 'u 1'
weigert "a variable without a sub-position" "'v' can't stand here" kapitel 'kapitel 241 2013 de A' 'h 1' 'v 1'
weigert "a number too large" 'a main position must be a whole number from 0 to 999' kapitel 'kapitel 241 2013 de A' 'h 1000'
weigert "a chapter of two digits" 'a chapter number must be' kapitel 'kapitel 24 2013 de A'
weigert "a year that no name can tell" 'a version year must be' kapitel 'kapitel 241 1988 de A'
weigert "another language" 'a language is de, fr or it' kapitel 'kapitel 241 2013 en A'
weigert "half a language" 'a language is de, fr or it' kapitel 'kapitel 241 2013 e A'
weigert "a range that runs backwards" 'the end of a range' kapitel 'kapitel 241 2013 de A' 'h 1' 'u 1 w=9-8'
weigert "half a range" 'the end of a range' kapitel 'kapitel 241 2013 de A' 'h 1' 'u 1 w=9'
weigert "a word too many" "'q' is not understood here" kapitel 'kapitel 241 2013 de A' 'h 1 q'
weigert "a character outside ISO-8859-1" "'€' is no printable character" kapitel 'kapitel 241 2013 de €'
weigert "a title that hides the second text" "may not hold 'Z='" kapitel 'kapitel 241 2013 de Z=1'
weigert "a title that is too long" 'are too long' kapitel "kapitel 241 2013 de $(printf '%01000d' 1)"
weigert "no title" 'something is missing' kapitel 'kapitel 241 2013 de'
weigert "a fault behind a good chapter" 'can'\''t stand here' kapitel 'kapitel 241 2013 de A' 'kapitel 242 2013 de B' 'v 1'
printf 'CF11201312410000000310000000001 ' >kurz.qvm
weigert "a chapter file of another length" 'is no chapter file' "$programme/kapitelschreiber" sammeln ziel/a.vlt kurz.qvm
weigert "a chapter file that is missing" 'cannot be read' "$programme/kapitelschreiber" sammeln ziel/a.vlt fehlt.qvm
printf 'kapitel 241 2013 de A\n' >kapitel.txt
weigert "a folder of chapters that is not there" \
    'ziel/fehlt/N131241.qvm: cannot be written: there is no folder ziel/fehlt/' \
    "$programme/kapitelschreiber" kapitel kapitel.txt ziel/fehlt
weigert "an unknown command" '--help tells more' "$programme/kapitelschreiber" nichts a b
"$programme/kapitelschreiber" --help | grep -q '^kapitelschreiber sammeln AUSGABE' || klage "kapitelschreiber: no help"
exit $fehler
