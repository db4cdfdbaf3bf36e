#!/usr/bin/env bash
# Installs what is missing, builds sulkbox and runs it. Arguments go to sulkbox.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)" --target sulkbox
exec build/src/sulkbox "$@"
