#!/usr/bin/env bash
# Installs the Debian 12 packages sulkbox needs to build, run and test, if
# any are missing. Uses sudo when not run as root.
#   scripts/deps.sh          build and run
#   scripts/deps.sh --test   also what the tests need
#   scripts/deps.sh --fuzz   also clang and libFuzzer for fuzz/
#   scripts/deps.sh --bench  also what the benchmark scripts in bench/ run
# (flags combine)
set -euo pipefail

test=
fuzz=
bench=
for arg in "$@"; do
    case $arg in
    --test) test=1 ;;
    --fuzz) fuzz=1 ;;
    --bench) bench=1 ;;
    *) echo "usage: $0 [--test] [--fuzz] [--bench]" >&2; exit 2 ;;
    esac
done

packages=(
    cmake g++ make pkg-config ccache
    qt6-base-dev qt6-declarative-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
    libicu-dev libgl-dev
    qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-layouts
    qml6-module-qtquick-window qml6-module-qtquick-templates qml6-module-qtqml-workerscript
    qt6-qpa-plugins
    fonts-noto-color-emoji fonts-noto-cjk fonts-noto-core
    libqt6svg6 librsvg2-bin dpkg-dev
)
if [[ -n $test ]]; then
    packages+=(locales xvfb xauth procps desktop-file-utils appstream man-db)
    # A private session bus for the tray and desktop tests; real tray hosts
    # for the end-to-end tests: GNOME Shell with the AppIndicator extension
    # (draws labels) and xfce4-panel (draws icons only).
    packages+=(dbus-daemon dbus-bin libglib2.0-bin x11-utils xdotool
        gnome-shell gnome-shell-extension-appindicator dconf-service dconf-gsettings-backend
        xfce4-panel xfconf)
fi
if [[ -n $bench ]]; then
    # callgrind, and i3status as the baseline the bar is measured against.
    packages+=(valgrind i3status bc time procps)
fi
if [[ -n $fuzz ]]; then
    # llvm brings llvm-symbolizer, for readable reports.
    packages+=(clang libclang-rt-dev llvm)
fi

missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$p")
    fi
done

as_root() {
    if [[ $(id -u) -eq 0 ]]; then "$@"; else sudo "$@"; fi
}

if ((${#missing[@]})); then
    echo "Installing: ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

# The number-formatting tests run once under a German locale.
if [[ -n $test ]] && ! locale -a 2>/dev/null | grep -qi '^de_DE\.utf-\?8$'; then
    echo "Generating the de_DE.UTF-8 locale"
    as_root sed -i 's/^# *de_DE.UTF-8 UTF-8/de_DE.UTF-8 UTF-8/' /etc/locale.gen
    grep -q '^de_DE.UTF-8 UTF-8' /etc/locale.gen || echo 'de_DE.UTF-8 UTF-8' | as_root tee -a /etc/locale.gen >/dev/null
    as_root locale-gen >/dev/null
fi
