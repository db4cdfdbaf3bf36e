#!/usr/bin/env bash
# Installs what is missing, builds sulkbox and runs it. Without arguments the
# desktop face starts; arguments go to sulkbox (`scripts/run.sh status`).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)" --target sulkbox sulkbox-desktop
exec build/src/sulkbox "$@"
