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
source "$(dirname "$0")/session.sh"

inside=0
if [[ "${1:-}" == "--in-session" ]]; then inside=1; shift; fi
SULKBOX=$1
SHOT=$2
OUT=$3
PANEL_H=32

if ((inside)); then
    xfce4-panel >"$OUT/xfce4-panel.log" 2>&1 &
    ENDING_PIDS+=("$!")
    wait_for 60 "the Status Tray's watcher" has_owner org.kde.StatusNotifierWatcher
    sleep 2
    screen_size
    "$SHOT" shot "$OUT/xfce-before.png" 0 0 "$screen_w" "$PANEL_H"

    "$SULKBOX" >"$OUT/sulkbox-xfce.log" 2>&1 &
    ENDING_PIDS+=("$!")
    wait_for 30 "the icon in the panel" settled_change "$OUT/xfce-before.png" "$OUT/xfce-now.png" "$screen_w" "$PANEL_H"
    read -r bx by bw bh <<<"$box"
    say "icon at x=$bx y=$by ${bw}x${bh}"
    "$SHOT" crop "$OUT/xfce-now.png" "$OUT/xfce-mood.png" $((bx - 8)) 0 $((bw + 16)) "$PANEL_H" 4
    # A colour emoji, not a placeholder: many colours in a small square.
    "$SHOT" crop "$OUT/xfce-now.png" "$OUT/xfce-icon.png" "$bx" "$by" "$bw" "$bh"
    colours=$("$SHOT" colors "$OUT/xfce-icon.png")
    ((colours >= 40)) || fail "the icon has only $colours colours"

    # Numbers mode, as the preferences would set it: the icon shows the loads.
    numbers_mode
    sleep 3
    "$SHOT" shot "$OUT/xfce-now.png" 0 0 "$screen_w" "$PANEL_H"
    "$SHOT" crop "$OUT/xfce-now.png" "$OUT/xfce-numbers.png" $((bx - 8)) 0 $((bw + 16)) "$PANEL_H" 4

    # A click activates the item here (no menu first, unlike GNOME).
    xdotool mousemove $((bx + bw / 2)) $((by + bh / 2)) click 1
    wait_for 20 "the panel window" panel_open
    sleep 1
    "$SHOT" shot "$OUT/xfce-panel-open.png"
    say "screenshots in $OUT"
    exit 0
fi

have_tools xfce4-panel xdotool Xvfb dbus-run-session gdbus xdpyinfo || exit 77
mkdir -p "$OUT"
private_home
mkdir -p "$XDG_CONFIG_HOME/xfce4/xfconf/xfce-perchannel-xml"

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

start_xvfb "$OUT/xvfb-xfce.log"
dbus-run-session -- "$0" --in-session "$SULKBOX" "$SHOT" "$OUT"
