#!/usr/bin/env bash
# Instructions per tick of `sulkbox bar`, counted by callgrind: the running
# bar is dumped twice, TICKS ticks apart, each time halfway between two ticks,
# and the second dump (callgrind zeroes its counters at every dump) divided
# by the ticks in between. The settle-in ticks before the first dump cover
# the start-up greeting, so the first holiday lookup is not counted.
#
#   bench/callgrind-tick.sh [--exe PATH] [--ticks N] [--root DIR] [--numbers] [--keep DIR] [FORMAT...]
#
# FORMAT is plain, i3bar or waybar (default: all three). TICKS defaults to
# 27, three slow samples' worth. --numbers measures the numbers label
# instead of the mood. --keep copies each format's counted dump to
# DIR/callgrind.FORMAT for callgrind_annotate.
set -euo pipefail
cd "$(dirname "$0")/.."

exe=build/src/sulkbox
ticks=27
root=()
mood=true
keep=
formats=()
while (($#)); do
    case "$1" in
    --exe) exe=$2; shift 2 ;;
    --ticks) ticks=$2; shift 2 ;;
    --root) root=(--root "$2"); shift 2 ;;
    --numbers) mood=false; shift ;;
    --keep) keep=$2; shift 2 ;;
    -h | --help) sed -n '2,14p' "$0" | sed 's/^# \{0,1\}//'; exit 0 ;;
    *) formats+=("$1"); shift ;;
    esac
done
((${#formats[@]})) || formats=(plain i3bar waybar)
command -v valgrind >/dev/null || { echo "valgrind is not installed (apt-get install valgrind)" >&2; exit 1; }
[[ -x $exe ]] || { echo "no executable at $exe; build the sulkbox target first" >&2; exit 1; }

work=$(mktemp -d)
pid=
cleanup() {
    [[ -n $pid ]] && kill "$pid" 2>/dev/null && wait "$pid" 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT

# A private settings file: a half-second interval (the per-tick work is the
# same at any interval) and the label mode asked for.
mkdir -p "$work/config/sulkbox"
printf '[General]\nrefreshInterval=0.5\nmoodEnabled=%s\n' "$mood" >"$work/config/sulkbox/sulkbox.conf"
interval=0.5
settle=24 # 12 s: past the 8 s greeting and the first slow sample

lines() { wc -l <"$work/out"; }
# Waits until the output has at least $1 lines, then half an interval more.
waitLines() {
    local deadline=$((SECONDS + 120))
    while (($(lines) < $1)); do
        ((SECONDS < deadline)) || { echo "bar stopped printing" >&2; exit 1; }
        kill -0 "$pid" 2>/dev/null || { echo "bar ended early" >&2; cat "$work/err" >&2; exit 1; }
        sleep 0.05
    done
    sleep 0.25
}
total() { sed -n 's/^\(summary\|totals\): *\([0-9]*\).*/\2/p' "$1" | head -n 1; }

printf '%-8s %-7s %6s %14s %16s\n' format label ticks instructions "per tick"
for format in "${formats[@]}"; do
    rm -f "$work"/cg.*
    : >"$work/out"
    XDG_CONFIG_HOME="$work/config" valgrind --tool=callgrind --callgrind-out-file="$work/cg.out" \
        "$exe" bar --format "$format" "${root[@]}" >"$work/out" 2>"$work/err" &
    pid=$!
    header=0
    [[ $format == i3bar ]] && header=2
    waitLines $((header + settle))
    callgrind_control -d "$pid" >/dev/null 2>&1
    first=$(lines)
    waitLines $((first + ticks))
    callgrind_control -d "$pid" >/dev/null 2>&1
    second=$(lines)
    kill "$pid"; wait "$pid" 2>/dev/null || true
    pid=
    dumps=("$work"/cg.out.*)
    last=$(ls -1v "${dumps[@]}" | sed -n 2p)
    n=$((second - first))
    ir=$(total "$last")
    [[ -n $keep ]] && mkdir -p "$keep" && cp "$last" "$keep/callgrind.$format"
    printf '%-8s %-7s %6d %14d %16.1f\n' "$format" "$([[ $mood == true ]] && echo mood || echo numbers)" \
        "$n" "$ir" "$(echo "$ir / $n" | bc -l)"
done
