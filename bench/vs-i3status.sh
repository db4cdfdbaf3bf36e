#!/usr/bin/env bash
# `sulkbox bar` in each format against i3status, the status feed many people
# already run, on this machine: each runs alone for SECONDS at a one-second
# interval, in turn, for ROUNDS rounds. Printed per run:
#
#   ticks       lines printed in the measured window
#   CPU/tick    on-CPU time of all the process's threads (schedstat, ns
#               precision) divided by the ticks
#   % core      the same time over the window's wall time
#   peak RSS    VmHWM at the end of the window (the process still running)
#   wake-ups/s  voluntary context switches per second, all threads
#   ratio       CPU/tick against i3status's in the same round
#
# Then the peak RSS of each format after an hour of ticks across midnight,
# run back to back on a simulated clock.
#
#   bench/vs-i3status.sh [--exe PATH] [--seconds N] [--rounds N] [--no-hour]
#
# i3status is Debian's package (scripts/deps.sh --bench), configured with
# cpu_usage, memory, load, disk /, ethernet, battery and cpu_temperature at
# interval 1. Other load on the machine shows in the figures: the load
# averages are printed before and after.
set -euo pipefail
cd "$(dirname "$0")/.."

exe=build/src/sulkbox
seconds=60
rounds=3
hour=true
warmup=3
while (($#)); do
    case "$1" in
    --exe) exe=$2; shift 2 ;;
    --seconds) seconds=$2; shift 2 ;;
    --rounds) rounds=$2; shift 2 ;;
    --no-hour) hour=false; shift ;;
    -h | --help) sed -n '2,24p' "$0" | sed 's/^# \{0,1\}//'; exit 0 ;;
    *) echo "unknown argument $1" >&2; exit 2 ;;
    esac
done
command -v i3status >/dev/null || { echo "i3status is not installed (scripts/deps.sh --bench)" >&2; exit 1; }
[[ -x $exe ]] || { echo "no executable at $exe; build the sulkbox target first" >&2; exit 1; }

work=$(mktemp -d)
pid=
cleanup() {
    [[ -n $pid ]] && kill "$pid" 2>/dev/null && wait "$pid" 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT

# sulkbox with default settings (1 s, the mood label), never the user's.
mkdir -p "$work/config"
cat >"$work/i3status.conf" <<'EOF'
general {
    output_format = "i3bar"
    colors = false
    interval = 1
}
order += "cpu_usage"
order += "memory"
order += "load"
order += "disk /"
order += "ethernet _first_"
order += "battery all"
order += "cpu_temperature 0"
cpu_usage { format = "CPU %usage" }
memory { format = "%used / %total" }
load { format = "%1min" }
disk "/" { format = "%avail" }
ethernet _first_ { format_up = "E: %ip" format_down = "E: down" }
battery all { format = "%status %percentage" }
cpu_temperature 0 { format = "T: %degrees °C" }
EOF

load() { cut -d' ' -f1-3 /proc/loadavg; }
# Nanoseconds on a CPU, all threads of $1.
cpuNs() { cat /proc/"$1"/task/*/schedstat 2>/dev/null | awk '{s += $1} END {print s + 0}'; }
switches() { cat /proc/"$1"/task/*/status 2>/dev/null | awk '/^voluntary_ctxt_switches/ {s += $2} END {print s + 0}'; }
hwmKb() { awk '/^VmHWM/ {print $2}' /proc/"$1"/status; }
lines() { wc -l <"$work/out"; }
nowNs() { date +%s%N; }

# measure NAME COMMAND...: prints "ticks cpu_ns wall_ns switches hwm_kb".
measure() {
    : >"$work/out"
    XDG_CONFIG_HOME="$work/config" "$@" >"$work/out" 2>"$work/err" &
    pid=$!
    sleep "$warmup"
    kill -0 "$pid" 2>/dev/null || { echo "$* ended early:" >&2; cat "$work/err" >&2; exit 1; }
    local l0 c0 s0 t0 l1 c1 s1 t1 h
    l0=$(lines); c0=$(cpuNs "$pid"); s0=$(switches "$pid"); t0=$(nowNs)
    sleep "$seconds"
    l1=$(lines); c1=$(cpuNs "$pid"); s1=$(switches "$pid"); t1=$(nowNs); h=$(hwmKb "$pid")
    kill "$pid"; wait "$pid" 2>/dev/null || true
    pid=
    echo "$((l1 - l0)) $((c1 - c0)) $((t1 - t0)) $((s1 - s0)) $h"
}

row() { # name ticks cpu_ns wall_ns switches hwm_kb baseline_cpu_per_tick_ns
    awk -v n="$1" -v ticks="$2" -v cpu="$3" -v wall="$4" -v sw="$5" -v hwm="$6" -v base="${7:-}" 'BEGIN {
        per = ticks > 0 ? cpu / ticks : 0
        ratio = (base != "" && base > 0) ? sprintf("%.2f", per / base) : "—"
        printf "%-16s %6d %10.3f ms %8.3f %% %9.1f MB %11.2f %7s\n", n, ticks, per / 1e6, 100 * cpu / wall,
            hwm / 1024, sw / (wall / 1e9), ratio
    }'
}

echo "$(nproc) cores, $(uname -r); load averages before: $(load)"
for ((round = 1; round <= rounds; ++round)); do
    echo
    echo "round $round of $rounds, ${seconds} s each"
    printf '%-16s %6s %13s %10s %12s %11s %7s\n' program ticks CPU/tick "% core" "peak RSS" wake-ups/s ratio
    read -r ticks cpu wall sw hwm < <(measure i3status -c "$work/i3status.conf")
    row i3status "$ticks" "$cpu" "$wall" "$sw" "$hwm"
    base=$(awk -v c="$cpu" -v t="$ticks" 'BEGIN {print (t > 0 ? c / t : 0)}')
    for format in plain waybar i3bar; do
        read -r ticks cpu wall sw hwm < <(measure "$exe" bar --format "$format")
        row "sulkbox $format" "$ticks" "$cpu" "$wall" "$sw" "$hwm" "$base"
    done
done
echo
echo "load averages after: $(load)"

if [[ $hour == true ]]; then
    echo
    echo "peak RSS of sulkbox bar after 3600 ticks from 23:30 local time (simulated clock)"
    start="$(date +%Y-%m-%d)T23:30:00"
    for format in plain waybar i3bar; do
        kb=$( { SULKBOX_FAKE_CLOCK="$start,3600" XDG_CONFIG_HOME="$work/config" /usr/bin/time -f '%M' \
            "$exe" bar --format "$format" >/dev/null; } 2>&1 | tail -n 1)
        printf '%-16s %9.1f MB\n' "sulkbox $format" "$(echo "$kb / 1024" | bc -l)"
    done
fi
