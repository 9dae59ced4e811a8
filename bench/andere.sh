#!/usr/bin/env bash
# Processor time of a test beside that of other programs on the same bytes: andere.sh [PROGRAM [RUNS [MB]]]
# (build/release/zepholt, 8, 100). The file is a clean document, old interface. The programs take turns, each with two runs
# in a row, since the first may pay for memory that a virtual machine's host took back meanwhile; of each the least of
# several counts. Needs gawk and xmllint.
#
# The forms of the comparison: the lines counted (wc); the bytes turned into UTF-16 (iconv); each record cut into twenty
# fields and the filled ones counted (gawk); the same records as XML, read without a tree, with one text a record, and with
# the same twenty fields as attributes (xmllint).
set -euo pipefail
programm=$(realpath "${1:-$(dirname "$0")/../build/release/zepholt}")
laeufe=${2:-8}
mb=${3:-100}
for fremd in gawk xmllint; do
    command -v "$fremd" >/dev/null || {
        echo "bench/andere.sh: $fremd is missing" >&2
        exit 1
    }
done
breiten="1 3 3 6 2 2 6 6 3 3 5 1 2 1 1 13 3 1 12 181" # columns of the twenty fields
cd "$(dirname "$0")/.."
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
mkdir "$ordner/leer"
datei=$ordner/a.01S
bench/erzeugen.py dokument "$datei" "$mb"
python3 - "$datei" "$ordner" "$breiten" <<'PY'
import itertools
import pathlib
import sys
from xml.sax.saxutils import escape, quoteattr

datei, ordner = map(pathlib.Path, sys.argv[1:3])
grenzen = list(itertools.pairwise(itertools.accumulate(map(int, sys.argv[3].split()), initial=0)))
zeilen = datei.read_bytes().decode("cp850").split("\r\n")[:-1]
with open(ordner / "text.xml", "w", encoding="utf-8") as ein_text, open(ordner / "felder.xml", "w", encoding="utf-8") as felder:
    ein_text.write("<d>\n")
    felder.write("<d>\n")
    for zeile in zeilen:
        ein_text.write(f"<r>{escape(zeile)}</r>\n")
        stuecke = (zeile[von:bis].rstrip() for von, bis in grenzen)
        felder.write("<r" + "".join(f" f{k}={quoteattr(s)}" for k, s in enumerate(stuecke)) + "/>\n")
    ein_text.write("</d>\n")
    felder.write("</d>\n")
PY

namen=(zepholt wc iconv gawk 'xmllint, texts' 'xmllint, attributes')
starte() {
    case $1 in
    zepholt)
        rm -f "$ordner/p.xml"
        "$programm" "file=$datei" dialog=de- "errorfile=$ordner/p.xml" "catalog=$ordner/leer"
        ;;
    wc) wc -l "$datei" ;;
    iconv) iconv -f CP850 -t UTF-16LE "$datei" ;;
    gawk)
        LC_ALL=C gawk -v FIELDWIDTHS="$breiten" '{ for (i = 1; i <= 20; i++) if ($i !~ /^ *$/) n++ } END { print n }' "$datei"
        ;;
    'xmllint, texts') xmllint --stream --huge --noout "$ordner/text.xml" ;;
    'xmllint, attributes') xmllint --stream --huge --noout "$ordner/felder.xml" ;;
    esac >/dev/null
}

TIMEFORMAT='%3U %3S'
for ((i = 0; i < laeufe; i += 2)); do
    for name in "${namen[@]}"; do
        for _ in 1 2; do
            echo "$name|$({ time starte "$name" 2>/dev/null; } 2>&1)"
        done
    done
done | awk -F '[|]' -v mb="$(stat -c %s "$datei")" '
    { split($2, z, " "); t = z[1] + z[2]; if (!($1 in b)) folge[++n] = $1; if (!($1 in b) || t < b[$1]) b[$1] = t }
    END { for (i = 1; i <= n; i++) printf "%-22s %7.3f s %7.0f MB/s %7.2f times zepholt\n", folge[i], b[folge[i]],
              mb / 1e6 / b[folge[i]], b[folge[i]] / b["zepholt"] }'
