#!/usr/bin/env bash
# startup.sh [PROGRAM]: the time from the start of the process to its first painted window with a style sheet of 30 KB in
# it, and the memory that is resident then: the medians of ten starts on the offscreen platform, after two that warm the
# caches up. PROGRAM is the release build's unless another is named. Ends with 1 where a goal is missed.
set -euo pipefail
top=$(dirname "$(readlink -f "$0")")/..
program=${1:-$top/build/release/tintora}
sheet=$top/samples/large.css
goal_milliseconds=350
goal_kilobytes=$((90 * 1024))

home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
mkdir -m 700 "$home/run"
export XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data XDG_STATE_HOME=$home/state XDG_RUNTIME_DIR=$home/run
export QT_QPA_PLATFORM=offscreen TINTORA_REPORT_FIRST_PAINT=1
unset TINTORA_HOME

# The platform has much to say about what it doesn't support.
start() { "$program" "$sheet" 2>"$home/errors" | sed -n 's/^first paint \([0-9]*\) ms, resident \([0-9]*\) kB$/\1 \2/p'; }
for _ in 1 2; do start >/dev/null; done
for _ in {1..10}; do start; done >"$home/starts"
[ "$(wc -l <"$home/starts")" -eq 10 ] || {
  cat "$home/errors" >&2
  echo "startup: $program didn't report its first paint" >&2
  exit 1
}

median() { cut -d ' ' -f "$1" "$home/starts" | sort -n | awk '{value[NR] = $1} END {printf "%d", (value[5] + value[6]) / 2}'; }
milliseconds=$(median 1)
kilobytes=$(median 2)
echo "first paint after $milliseconds ms (goal: under $goal_milliseconds), all: $(cut -d ' ' -f 1 "$home/starts" | sort -n | paste -sd ' ')"
echo "resident $((kilobytes / 1024)) MB (goal: under $((goal_kilobytes / 1024)))"
[ "$milliseconds" -lt "$goal_milliseconds" ] && [ "$kilobytes" -lt "$goal_kilobytes" ]
