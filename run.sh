#!/usr/bin/env bash
# ./run.sh [FILE]: installs what is missing, builds the editor, and starts it. Where there is no display it runs on a
# virtual one, saves a picture of the window to build/tintora.png, and ends.
set -euo pipefail
top=$(dirname "$(readlink -f "$0")")

"$top/scripts/install-packages.sh"

build=$top/build/release
log=$top/build/release.log
mkdir -p "$build"
[ -f "$build/build.ninja" ] || echo "Building Tintora, which takes a few minutes the first time"
if ! { (cd "$top" && { [ -f "$build/build.ninja" ] || cmake --preset release; } && cmake --build "$build"); } >"$log" 2>&1; then
  tail -n 40 "$log" >&2
  echo "The build failed; all of its output is in $log" >&2
  exit 1
fi

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  # The desktop learns that it opens style sheets; where it can't, the program starts all the same.
  [ "${CI:-}" = true ] || "$top/scripts/install-desktop-file.sh" "$build/tintora" || true
  exec "$build/tintora" "$@"
fi
"$top/scripts/picture.sh" "$build/tintora" "$top/build/tintora.png" "$@"
echo "There is no display here. A picture of the window is in $top/build/tintora.png"
