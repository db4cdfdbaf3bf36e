#!/usr/bin/env bash
# Builds the Debian package, without the tests, in build-deb/. Install it with
#   sudo apt-get install ./build-deb/sulkbox_*.deb
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
# cpack installs what was built; it need not build everything first.
cmake -S . -B build-deb -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_SKIP_INSTALL_ALL_DEPENDENCY=ON >/dev/null
cmake --build build-deb -j"$(nproc)" --target sulkbox_dist
cd build-deb
cpack -G DEB
