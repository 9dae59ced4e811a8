#!/usr/bin/env bash
# Installs the Debian packages named as arguments, as far as they are missing. Says what it does; silent when all stand.
set -euo pipefail

fehlend=()
for paket in "$@"; do
    dpkg-query -W -f='${Status}' "$paket" 2>/dev/null | grep -q '^install ok installed$' || fehlend+=("$paket")
done
[ ${#fehlend[@]} -eq 0 ] && exit 0

echo "== Installing: ${fehlend[*]}"
als_root=()
[ "$(id -u)" -eq 0 ] || als_root=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${als_root[@]}" apt-get update -qq
"${als_root[@]}" apt-get install -y -qq --no-install-recommends "${fehlend[@]}" >/dev/null
