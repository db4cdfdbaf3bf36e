#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh --test
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)"
cd build
ctest --output-on-failure "$@"
