#!/usr/bin/env bash
# Memory and CPU of the whole process: the desktop face and `sulkbox bar`.
#
#   bench/desktop.sh [BUILD] [BASELINE_SULKBOX]
#
# BUILD is the build folder (default: build), with sulkbox, sulkbox-desktop
# and tests/traywatcher built. BASELINE_SULKBOX, if given, is another
# `sulkbox` executable whose `bar` is measured the same way for comparison.
#
# The desktop face runs on Xvfb with a private session bus and a stand-in
# tray host, as on a desktop whose shell shows its item. Prints:
#   - resident memory with the panel never opened, 10 s after start;
#   - CPU over 60 s with the panel hidden, at the default 1 s interval;
#   - resident memory and CPU over 60 s with the panel open;
#   - resident memory after closing it, and CPU over 60 s hidden again;
#   - `sulkbox bar`: maximum resident memory and CPU over 60 s, and the
#     Qt and ICU libraries it maps (QtCore only: no GUI library).
set -euo pipefail
cd "$(dirname "$0")/.."
source tests/e2e/session.sh
source bench/measure.sh
SECONDS_MEASURED=${SULKBOX_BENCH_SECONDS:-60}

if [[ "${1:-}" != "--in-session" ]]; then
    BUILD=$(realpath "${1:-build}")
    BASELINE=${2:-}
    for f in "$BUILD/src/sulkbox" "$BUILD/src/sulkbox-desktop" "$BUILD/tests/traywatcher"; do
        [[ -x "$f" ]] || { echo "missing $f: cmake --build $BUILD --target sulkbox sulkbox-desktop traywatcher" >&2; exit 1; }
    done
    have_tools Xvfb dbus-run-session gdbus || exit 1
    private_home
    start_xvfb /dev/null
    dbus-run-session -- "$0" --in-session "$BUILD" "$BASELINE"
    exit
fi

# --- inside the private session -------------------------------------------------
BUILD=$2
BASELINE=${3:-}

mb() { awk -v kb="$1" 'BEGIN {printf "%.1f MB", kb / 1024}'; }
# CPU share of one core over the measured time, from two readings.
share() { awk -v a="$1" -v b="$2" -v s="$SECONDS_MEASURED" \
    'BEGIN {printf "%.3f %% of one core (%.1f ms CPU in %d s)", (b - a) / 1e9 / s * 100, (b - a) / 1e6, s}'; }
qt_libs() { awk '{print $6}' "/proc/$1/maps" | grep -E 'libQt6|libicu' | xargs -n1 basename | sort -u | tr '\n' ' '; }

"$BUILD/tests/traywatcher" >/dev/null &
WATCHER=$!
ENDING_PIDS+=("$WATCHER")
wait_for 10 "the stand-in tray host" has_owner org.kde.StatusNotifierWatcher

echo "== desktop face (Xvfb, stand-in tray host)"
"$BUILD/src/sulkbox" 2>/dev/null &
PID=$!
ENDING_PIDS+=("$PID")
sleep 10
item="org.kde.StatusNotifierItem-$PID-1"
echo "resident, panel never opened:      $(mb "$(rss_kb "$PID")")"
echo "libraries:                         $(qt_libs "$PID")"

t0=$(cpu_ns "$PID")
sleep "$SECONDS_MEASURED"
t1=$(cpu_ns "$PID")
echo "CPU, panel hidden, 1 s interval:   $(share "$t0" "$t1")"

activate() {
    gdbus call --session --dest "$item" --object-path /StatusNotifierItem \
        --method org.kde.StatusNotifierItem.Activate 640 10 >/dev/null
}
activate
sleep 3
echo "resident, panel open:              $(mb "$(rss_kb "$PID")")"
t0=$(cpu_ns "$PID")
sleep "$SECONDS_MEASURED"
t1=$(cpu_ns "$PID")
echo "CPU, panel open, 1 s interval:     $(share "$t0" "$t1")"
echo "resident, after a minute open:     $(mb "$(rss_kb "$PID")")"
activate
sleep 5
echo "resident, opened and closed once:  $(mb "$(rss_kb "$PID")")"
# The process list's pool threads end 30 s after their last use; counted
# from live threads, a thread that ends inside the window would take its
# time with it.
sleep 30
t0=$(cpu_ns "$PID")
sleep "$SECONDS_MEASURED"
t1=$(cpu_ns "$PID")
echo "CPU, panel hidden again:           $(share "$t0" "$t1")"
kill "$PID"
wait "$PID" 2>/dev/null || true
ENDING_PIDS=("$WATCHER")

bar() {
    local exe=$1 label=$2
    "$exe" bar >/dev/null &
    local pid=$!
    sleep 1
    local a b
    a=$(cpu_ns "$pid")
    sleep "$SECONDS_MEASURED"
    b=$(cpu_ns "$pid")
    echo "== sulkbox bar ($label)"
    echo "maximum resident:                  $(mb "$(hwm_kb "$pid")")"
    echo "CPU, 1 s interval:                 $(share "$a" "$b")"
    echo "libraries:                         $(qt_libs "$pid")"
    kill "$pid"
    wait "$pid" 2>/dev/null || true
}
bar "$BUILD/src/sulkbox" "this build"
if [[ -n "$BASELINE" ]]; then
    bar "$BASELINE" "$BASELINE"
fi
