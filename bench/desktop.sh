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
SECONDS_MEASURED=${SULKBOX_BENCH_SECONDS:-60}

if [[ "${1:-}" != "--in-session" ]]; then
    BUILD=$(realpath "${1:-build}")
    BASELINE=${2:-}
    for f in "$BUILD/src/sulkbox" "$BUILD/src/sulkbox-desktop" "$BUILD/tests/traywatcher"; do
        [[ -x "$f" ]] || { echo "missing $f: cmake --build $BUILD --target sulkbox sulkbox-desktop traywatcher" >&2; exit 1; }
    done
    for tool in Xvfb dbus-run-session gdbus; do
        command -v "$tool" >/dev/null || { echo "missing $tool (scripts/deps.sh --test)" >&2; exit 1; }
    done
    work=$(mktemp -d)
    cleanup() {
        [[ -n "${XVFB_PID:-}" ]] && kill "$XVFB_PID" 2>/dev/null || true
        wait 2>/dev/null || true
        rm -rf "$work"
    }
    trap cleanup EXIT
    export HOME="$work/home" XDG_RUNTIME_DIR="$work/runtime"
    export XDG_CONFIG_HOME="$HOME/.config" XDG_CACHE_HOME="$HOME/.cache"
    mkdir -p "$HOME" "$XDG_RUNTIME_DIR"
    chmod 700 "$XDG_RUNTIME_DIR"
    unset DBUS_SESSION_BUS_ADDRESS WAYLAND_DISPLAY QT_QPA_PLATFORM
    Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$work/display" >/dev/null 2>&1 &
    XVFB_PID=$!
    for _ in $(seq 100); do grep -q . "$work/display" 2>/dev/null && break; sleep 0.1; done
    export DISPLAY=":$(head -1 "$work/display")"
    dbus-run-session -- "$0" --in-session "$BUILD" "$BASELINE"
    exit
fi

# --- inside the private session -------------------------------------------------
BUILD=$2
BASELINE=${3:-}

rss_kb() { awk '/^VmRSS:/ {print $2}' "/proc/$1/status"; }
hwm_kb() { awk '/^VmHWM:/ {print $2}' "/proc/$1/status"; }
# CPU time of all the process's threads so far, in nanoseconds.
cpu_ns() { cat /proc/"$1"/task/*/schedstat | awk '{sum += $1} END {printf "%.0f", sum}'; }
mb() { awk -v kb="$1" 'BEGIN {printf "%.1f MB", kb / 1024}'; }
# CPU share of one core over the measured time, from two readings.
share() { awk -v a="$1" -v b="$2" -v s="$SECONDS_MEASURED" \
    'BEGIN {printf "%.3f %% of one core (%.1f ms CPU in %d s)", (b - a) / 1e9 / s * 100, (b - a) / 1e6, s}'; }
qt_libs() { awk '{print $6}' "/proc/$1/maps" | grep -E 'libQt6|libicu' | xargs -n1 basename | sort -u | tr '\n' ' '; }

"$BUILD/tests/traywatcher" >/dev/null &
WATCHER=$!
trap 'kill "$WATCHER" ${PID:+"$PID"} 2>/dev/null || true' EXIT
for _ in $(seq 50); do
    gdbus call --session --dest org.freedesktop.DBus --object-path / --method org.freedesktop.DBus.NameHasOwner \
        org.kde.StatusNotifierWatcher 2>/dev/null | grep -q true && break
    sleep 0.1
done

echo "== desktop face (Xvfb, stand-in tray host)"
"$BUILD/src/sulkbox" 2>/dev/null &
PID=$!
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
PID=

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
