#!/usr/bin/env bash
# install-desktop-file.sh PROGRAM: tells the user's desktop of a program that runs where it was built, so that it can open
# style sheets: a desktop file and an icon, in the user's own folder for data. Does nothing where the desktop knows a
# program of that name that is still there.
set -euo pipefail
program=$(readlink -f "$1")
data=$(dirname "$(readlink -f "$0")")/../data
user=${XDG_DATA_HOME:-$HOME/.local/share}
desktop_file=$user/applications/tintora.desktop

# One that is installed for all users serves as well.
IFS=: read -ra system <<<"${XDG_DATA_DIRS:-/usr/local/share:/usr/share}"
for folder in "${system[@]}"; do
  [ ! -e "$folder/applications/tintora.desktop" ] || exit 0
done
known=$(sed -n 's/^TryExec=//p' "$desktop_file" 2>/dev/null || true)
if [ -e "$desktop_file" ] && { [ -z "$known" ] || [ -x "$(printf '%b' "$known")" ]; }; then
  exit 0
fi

# A back-slash counts in a desktop file as in a C string; in Exec the path is quoted besides, and "%" has a meaning.
path=${program//\\/\\\\}
quoted=$(printf '%s' "$program" | sed -e 's/[\\"`$]/\\&/g' -e 's/\\/\\\\/g' -e 's/%/%%/g')
mkdir -p "$user/applications" "$user/icons/hicolor/scalable/apps"
cp "$data/icons/tintora.svg" "$user/icons/hicolor/scalable/apps/tintora.svg"
while IFS= read -r line; do
  case $line in
    Exec=*) printf 'TryExec=%s\nExec="%s" %%f\n' "$path" "$quoted" ;;
    *) printf '%s\n' "$line" ;;
  esac
done <"$data/tintora.desktop" >"$desktop_file"
if command -v update-desktop-database >/dev/null; then
  update-desktop-database -q "$user/applications" || true
fi
