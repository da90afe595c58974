#!/usr/bin/env bash
# picture.sh PROGRAM PICTURE [ARGUMENT...]: runs PROGRAM on a virtual display with settings of its own, saves a picture of
# the display when its window is up, and ends it.
set -euo pipefail
program=$1; picture=$2; shift 2

home=$(mktemp -d)
cleanup() {
  kill $(jobs -p) 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$home"
}
trap cleanup EXIT
# An automatic run: nothing is asked about the default editor.
export CI=true
export XDG_CONFIG_HOME=$home/config XDG_RUNTIME_DIR=$home/run XDG_DATA_HOME=$home/data XDG_STATE_HOME=$home/state
mkdir -p "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_STATE_HOME"
mkdir -m 700 "$XDG_RUNTIME_DIR"

# Xvfb picks a display that is free, and says which.
mkfifo "$home/display"
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$home/display" >/dev/null 2>&1 &
read -r number <"$home/display"
export DISPLAY=:$number
wait_for() { local tries; for tries in $(seq 100); do "$@" && return; sleep 0.1; done; return 1; }

has_window_manager() { [[ $(xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null) == *0x* ]]; }
openbox >"$home/openbox.log" 2>&1 &
wait_for has_window_manager || { cat "$home/openbox.log" >&2; exit 1; }

# The window's own line in the tree has its title and its class; it is up when it can be seen.
window() { xwininfo -root -tree 2>/dev/null | awk '/\("tintora" "[Tt]intora"\)/ && !found {print $1; found = 1}'; }
is_up() { local id; id=$(window) && [ -n "$id" ] && [[ $(xwininfo -id "$id" 2>/dev/null) == *IsViewable* ]]; }
"$program" "$@" >"$home/log" 2>&1 &
wait_for is_up || { cat "$home/log" >&2; echo "The window didn't come up." >&2; exit 1; }
sleep 1
mkdir -p "$(dirname "$picture")"
import -window root "$picture"
