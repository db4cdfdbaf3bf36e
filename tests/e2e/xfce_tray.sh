#!/usr/bin/env bash
# The desktop face in a tray host that draws no labels: xfce4-panel's Status
# Tray under Xvfb. Starts sulkbox, waits for its icon in the panel and saves
# it, enlarged, in mood mode (xfce-mood.png) and in numbers mode
# (xfce-numbers.png), then clicks the icon and saves the open panel
# (xfce-panel-open.png).
#
#   xfce_tray.sh SULKBOX SCREENTOOL OUT
# Exit status 77 (skipped) where xfce4-panel is missing.
set -euo pipefail

if [[ "${1:-}" == "--in-session" ]]; then
    inside=1
    shift
else
    inside=0
fi
SULKBOX=$1
SHOT=$2
OUT=$3
PANEL_H=32

say() { echo "e2e: $*" >&2; }
fail() { say "FAIL: $*"; exit 1; }
wait_for() {
    local seconds=$1 what=$2
    shift 2
    local end=$((SECONDS + seconds))
    until "$@"; do
        ((SECONDS < end)) || fail "timed out after ${seconds}s waiting for $what"
        sleep 0.25
    done
}

if ((inside)); then
    cleanup_session() {
        [[ -n "${SULKBOX_PID:-}" ]] && kill "$SULKBOX_PID" 2>/dev/null || true
        [[ -n "${PANEL_PID:-}" ]] && kill "$PANEL_PID" 2>/dev/null || true
        wait 2>/dev/null || true
    }
    trap cleanup_session EXIT
    has_owner() {
        gdbus call --session --dest org.freedesktop.DBus --object-path / \
            --method org.freedesktop.DBus.NameHasOwner "$1" 2>/dev/null | grep -q true
    }
    xfce4-panel >"$OUT/xfce4-panel.log" 2>&1 &
    PANEL_PID=$!
    wait_for 60 "the Status Tray's watcher" has_owner org.kde.StatusNotifierWatcher
    sleep 2
    read -r screen_w _ < <(xdpyinfo | awk '/dimensions:/ {split($2, d, "x"); print d[1], d[2]}')
    "$SHOT" shot "$OUT/xfce-before.png" 0 0 "$screen_w" "$PANEL_H"

    "$SULKBOX" >"$OUT/sulkbox-xfce.log" 2>&1 &
    SULKBOX_PID=$!
    box=none
    previous=
    shown() {
        "$SHOT" shot "$OUT/xfce-now.png" 0 0 "$screen_w" "$PANEL_H"
        box=$("$SHOT" diff "$OUT/xfce-before.png" "$OUT/xfce-now.png")
        if [[ "$box" != none && "$box" == "$previous" ]]; then return 0; fi
        previous=$box
        return 1
    }
    wait_for 30 "the icon in the panel" shown
    read -r bx by bw bh <<<"$box"
    say "icon at x=$bx y=$by ${bw}x${bh}"
    "$SHOT" crop "$OUT/xfce-now.png" "$OUT/xfce-mood.png" $((bx - 8)) 0 $((bw + 16)) "$PANEL_H" 4
    # A colour emoji, not a placeholder: many colours in a small square.
    "$SHOT" crop "$OUT/xfce-now.png" "$OUT/xfce-icon.png" "$bx" "$by" "$bw" "$bh"
    colours=$("$SHOT" colors "$OUT/xfce-icon.png")
    ((colours >= 40)) || fail "the icon has only $colours colours"

    # Numbers mode, as the preferences would set it: the icon shows the loads.
    mkdir -p "$XDG_CONFIG_HOME/sulkbox"
    printf '[General]\nmoodEnabled=false\n' >"$XDG_CONFIG_HOME/sulkbox/sulkbox.conf"
    sleep 3
    "$SHOT" shot "$OUT/xfce-now.png" 0 0 "$screen_w" "$PANEL_H"
    "$SHOT" crop "$OUT/xfce-now.png" "$OUT/xfce-numbers.png" $((bx - 8)) 0 $((bw + 16)) "$PANEL_H" 4

    # A click activates the item here (no menu first, unlike GNOME).
    xdotool mousemove $((bx + bw / 2)) $((by + bh / 2)) click 1
    panel_open() { [[ -n "$(xdotool search --onlyvisible --class '^sulkbox$' 2>/dev/null | head -1)" ]]; }
    wait_for 20 "the panel window" panel_open
    sleep 1
    "$SHOT" shot "$OUT/xfce-panel-open.png"
    say "screenshots in $OUT"
    exit 0
fi

for tool in xfce4-panel xdotool Xvfb dbus-run-session gdbus xdpyinfo; do
    command -v "$tool" >/dev/null || { say "skipped: $tool is not installed"; exit 77; }
done
mkdir -p "$OUT"
work=$(mktemp -d)
cleanup() {
    [[ -n "${XVFB_PID:-}" ]] && kill "$XVFB_PID" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
export HOME="$work/home" XDG_RUNTIME_DIR="$work/runtime"
export XDG_CONFIG_HOME="$HOME/.config" XDG_DATA_HOME="$HOME/.local/share" XDG_CACHE_HOME="$HOME/.cache"
mkdir -p "$XDG_RUNTIME_DIR" "$XDG_CONFIG_HOME/xfce4/xfconf/xfce-perchannel-xml"
chmod 700 "$XDG_RUNTIME_DIR"
unset DBUS_SESSION_BUS_ADDRESS WAYLAND_DISPLAY QT_QPA_PLATFORM SESSION_MANAGER
export LANG=C.UTF-8 LC_ALL=C.UTF-8 NO_AT_BRIDGE=1
# Under AddressSanitizer: Qt's X11 event reader passes strndup a reply
# buffer without a terminator, which strict string checks take for an
# overflow in every X11 client (sulkbox and the screen helper alike).
if [[ -n "${ASAN_OPTIONS:-}" ]]; then export ASAN_OPTIONS="$ASAN_OPTIONS:strict_string_checks=0"; fi

# One panel along the top: a spacer, then the Status Tray.
cat >"$XDG_CONFIG_HOME/xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml" <<EOF
<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="size" type="uint" value="$PANEL_H"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
        <value type="int" value="2"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-2" type="string" value="systray"/>
  </property>
</channel>
EOF

Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$work/display" >"$OUT/xvfb-xfce.log" 2>&1 &
XVFB_PID=$!
wait_for 30 "Xvfb" grep -q . "$work/display"
export DISPLAY=":$(head -1 "$work/display")"
dbus-run-session -- "$0" --in-session "$SULKBOX" "$SHOT" "$OUT"
