#!/usr/bin/env bash
# CPU and memory of the panel at the default one-second refresh: hidden
# before the first opening, open, and hidden again. Runs under a private
# Xvfb display when there is no display.
#   bench/panel-bench.sh [seconds per phase, default 60]
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-60}"
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j2 --target sulkbox_panel_bench >/dev/null
bench=build/bench/sulkbox_panel_bench
# Settings stay out of the user's file.
export XDG_CONFIG_HOME="$(mktemp -d)"
trap 'rm -rf "$XDG_CONFIG_HOME"' EXIT
if [[ -z "${DISPLAY:-}" && -z "${WAYLAND_DISPLAY:-}" ]]; then
    exec xvfb-run -a -s "-screen 0 1920x1080x24" env QT_QPA_PLATFORM=xcb "$bench" --seconds "$seconds"
fi
exec "$bench" --seconds "$seconds"
