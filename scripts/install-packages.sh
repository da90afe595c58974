#!/usr/bin/env bash
# Installs the packages of scripts/packages.txt that are missing. Asks nothing, and does nothing where all are there.
set -euo pipefail
list="$(dirname "$(readlink -f "$0")")/packages.txt"
mapfile -t wanted < <(sed -e 's/#.*//' -e '/^\s*$/d' "$list")
installed=$(dpkg-query -W -f '${Package} ${db:Status-Abbrev}\n' "${wanted[@]}" 2>/dev/null | awk '$2 == "ii" {print $1}' || true)
missing=()
for package in "${wanted[@]}"; do
  grep -qxF -- "$package" <<<"$installed" || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "These packages are missing, and only root can install them: ${missing[*]}" >&2; exit 1; }
  as_root=(sudo)
fi
echo "Installing ${missing[*]}"
log=$(mktemp)
if ! { "${as_root[@]}" apt-get update -qq &&
       "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
  tail -n 20 "$log" >&2
  exit 1
fi
rm -f "$log"
