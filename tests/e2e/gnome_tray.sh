#!/usr/bin/env bash
# The desktop face in a real tray host: GNOME Shell (X11 mode, under Xvfb)
# with the AppIndicator extension. Starts sulkbox, finds its item in the top
# bar, double-clicks it, checks the panel window hangs below the bar at 300
# px, closes it with Escape and with the item, and quits through the menu.
# Screenshots go to OUT: bar.png, bar-item.png (enlarged), panel-open.png,
# panel.png, bar-numbers.png (numbers mode, enlarged).
#
#   gnome_tray.sh SULKBOX SCREENTOOL OUT
# Exit status 77 (skipped) where GNOME Shell or the extension is missing.
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
EXTENSION=ubuntu-appindicators@ubuntu.com

say() { echo "e2e: $*" >&2; }
fail() { say "FAIL: $*"; exit 1; }

# Runs "$@" until it succeeds or SECONDS_LEFT runs out.
wait_for() {
    local seconds=$1 what=$2
    shift 2
    local end=$((SECONDS + seconds))
    until "$@"; do
        ((SECONDS < end)) || fail "timed out after ${seconds}s waiting for $what"
        sleep 0.25
    done
}

# --- inside the private session bus -------------------------------------------
if ((inside)); then
    cleanup_session() {
        [[ -n "${SULKBOX_PID:-}" ]] && kill "$SULKBOX_PID" 2>/dev/null || true
        [[ -n "${SHELL_PID:-}" ]] && kill "$SHELL_PID" 2>/dev/null || true
        wait 2>/dev/null || true
    }
    trap cleanup_session EXIT

    gsettings set org.gnome.shell enabled-extensions "['$EXTENSION']"
    gsettings set org.gnome.shell disable-user-extensions false
    gsettings set org.gnome.desktop.notifications show-banners false

    has_owner() {
        gdbus call --session --dest org.freedesktop.DBus --object-path / \
            --method org.freedesktop.DBus.NameHasOwner "$1" 2>/dev/null | grep -q true
    }
    watcher_property() {
        gdbus call --session --dest org.kde.StatusNotifierWatcher --object-path /StatusNotifierWatcher \
            --method org.freedesktop.DBus.Properties.Get org.kde.StatusNotifierWatcher "$1" 2>/dev/null
    }
    host_ready() { has_owner org.kde.StatusNotifierWatcher && watcher_property IsStatusNotifierHostRegistered | grep -q true; }

    gnome-shell --x11 --replace >"$OUT/gnome-shell.log" 2>&1 &
    SHELL_PID=$!
    wait_for 90 "GNOME Shell's tray host" host_ready
    # GNOME starts in the overview; leave it for the desktop.
    sleep 2
    xdotool key Escape
    sleep 1

    # The work area starts below the bar: "x, y, width, height, ..." per desktop.
    read -r bar_h < <(xprop -root _NET_WORKAREA | sed 's/.*= //; s/,//g' | awk '{print $2}')
    read -r screen_w screen_h < <(xdpyinfo | awk '/dimensions:/ {split($2, d, "x"); print d[1], d[2]}')
    [[ "$bar_h" -gt 10 ]] || fail "no top bar (work area starts at y=$bar_h)"
    say "screen ${screen_w}x${screen_h}, top bar ${bar_h} px"

    "$SHOT" shot "$OUT/bar-before.png" 0 0 "$screen_w" "$bar_h"

    "$SULKBOX" >"$OUT/sulkbox.log" 2>&1 &
    SULKBOX_PID=$!
    item="org.kde.StatusNotifierItem-$SULKBOX_PID-1"
    # The watcher lists it as <unique name>@<object path>.
    registered() {
        local owner
        owner=$(gdbus call --session --dest org.freedesktop.DBus --object-path / \
            --method org.freedesktop.DBus.GetNameOwner "$item" 2>/dev/null | sed "s/[(',)]//g") || return 1
        watcher_property RegisteredStatusNotifierItems | grep -q "$owner@/StatusNotifierItem"
    }
    wait_for 60 "the item to register" registered
    say "registered $item"

    # The item shows in the right part of the bar (the clock in the middle
    # changes by itself). Wait until it is there and has stopped changing.
    right=$((screen_w * 55 / 100))
    box=none
    previous=
    shown() {
        "$SHOT" shot "$OUT/bar-now.png" 0 0 "$screen_w" "$bar_h"
        box=$("$SHOT" diff "$OUT/bar-before.png" "$OUT/bar-now.png" "$right" 0 $((screen_w - right)) "$bar_h")
        if [[ "$box" != none && "$box" == "$previous" ]]; then return 0; fi
        previous=$box
        return 1
    }
    wait_for 30 "the item in the top bar" shown
    read -r bx by bw bh <<<"$box"
    say "item at x=$bx y=$by ${bw}x${bh}"
    # A label, not an icon alone: the mood's emoji and phrase take room.
    [[ "$bw" -ge 60 ]] || fail "the item is only ${bw} px wide: no label drawn"
    label=$(gdbus call --session --dest "$item" --object-path /StatusNotifierItem \
        --method org.freedesktop.DBus.Properties.Get org.kde.StatusNotifierItem XAyatanaLabel)
    say "label $label"
    cp "$OUT/bar-now.png" "$OUT/bar.png"
    "$SHOT" crop "$OUT/bar.png" "$OUT/bar-item.png" $((bx - 12)) 0 $((bw + 24)) "$bar_h" 3

    cx=$((bx + bw / 2))
    cy=$((by + bh / 2))
    panel_window() { xdotool search --onlyvisible --class '^sulkbox$' 2>/dev/null | head -1; }
    panel_open() { [[ -n "$(panel_window)" ]]; }
    panel_closed() { [[ -z "$(panel_window)" ]]; }
    double_click() {
        xdotool mousemove "$cx" "$cy"
        sleep 0.3
        xdotool click --repeat 2 --delay 120 1
    }

    # GNOME opens the menu on a click and activates the item on a double click.
    double_click
    wait_for 20 "the panel window" panel_open
    sleep 1 # let it draw
    wid=$(panel_window)
    eval "$(xdotool getwindowgeometry --shell "$wid")"
    say "panel window at x=$X y=$Y ${WIDTH}x${HEIGHT}"
    "$SHOT" shot "$OUT/panel-open.png"
    px=$((X > 8 ? X - 8 : 0))
    "$SHOT" crop "$OUT/panel-open.png" "$OUT/panel.png" "$px" 0 $((screen_w - px)) $((Y + HEIGHT + 8))
    [[ "$WIDTH" -eq 300 ]] || fail "the panel is $WIDTH px wide, not 300"
    ((Y >= bar_h && Y <= bar_h + 40)) || fail "the panel's top ($Y) is not just below the bar ($bar_h)"
    ((X >= 0 && X + WIDTH <= screen_w)) || fail "the panel leaves the screen"
    ((X <= cx && cx <= X + WIDTH)) || fail "the panel ($X..$((X + WIDTH))) is not under the item ($cx)"
    wmclass=$(xprop -id "$wid" WM_CLASS)
    [[ "$wmclass" == *'"sulkbox"' ]] || fail "window class is $wmclass"

    # Escape closes it.
    xdotool key Escape
    wait_for 10 "Escape to close the panel" panel_closed
    say "Escape closed it"

    # Open again, then a second double click on the item closes it.
    double_click
    wait_for 20 "the panel to open again" panel_open
    sleep 1
    double_click
    wait_for 10 "a double click on the item to close the panel" panel_closed
    sleep 1.5
    panel_closed || fail "the panel came back after the closing click"
    say "the item's second double click closed it"

    # Numbers mode, as the preferences would set it: the label shows the
    # two loads at once.
    mkdir -p "$XDG_CONFIG_HOME/sulkbox"
    printf '[General]\nmoodEnabled=false\n' >"$XDG_CONFIG_HOME/sulkbox/sulkbox.conf"
    numbers() {
        gdbus call --session --dest "$item" --object-path /StatusNotifierItem \
            --method org.freedesktop.DBus.Properties.Get org.kde.StatusNotifierItem XAyatanaLabel |
            grep -Eq "<'[0-9]+%  [0-9]+%'>"
    }
    wait_for 10 "the label to show the loads" numbers
    sleep 1
    "$SHOT" shot "$OUT/bar-numbers-full.png" 0 0 "$screen_w" "$bar_h"
    "$SHOT" crop "$OUT/bar-numbers-full.png" "$OUT/bar-numbers.png" $((screen_w / 2)) 0 $((screen_w / 2)) "$bar_h" 2
    say "numbers mode shows the loads"

    # Quit from the menu (its "Quit" entry, as the host sends it).
    gdbus call --session --dest "$item" --object-path /MenuBar --method com.canonical.dbusmenu.Event \
        4 clicked '<0>' 0 >/dev/null
    quit() { ! kill -0 "$SULKBOX_PID" 2>/dev/null; }
    wait_for 10 "Quit to end sulkbox" quit
    wait "$SULKBOX_PID" && status=0 || status=$?
    [[ "$status" -eq 0 ]] || fail "sulkbox ended with status $status"
    SULKBOX_PID=
    if grep -v '^QStandardPaths' "$OUT/sulkbox.log" | grep -q .; then
        say "sulkbox said:"
        cat "$OUT/sulkbox.log" >&2
        fail "sulkbox wrote to standard error"
    fi
    say "passed; screenshots in $OUT"
    exit 0
fi

# --- outside: a private home, X server and system bus -------------------------
for tool in gnome-shell xdotool Xvfb dbus-run-session dbus-daemon gsettings gdbus xprop xdpyinfo; do
    command -v "$tool" >/dev/null || { say "skipped: $tool is not installed (scripts/deps.sh --test)"; exit 77; }
done
[[ -d "/usr/share/gnome-shell/extensions/$EXTENSION" ]] ||
    { say "skipped: the AppIndicator extension is not installed (scripts/deps.sh --test)"; exit 77; }

mkdir -p "$OUT"
rm -f "$OUT"/*.png "$OUT"/*.log
work=$(mktemp -d)
cleanup() {
    [[ -n "${XVFB_PID:-}" ]] && kill "$XVFB_PID" 2>/dev/null || true
    [[ -n "${SYSTEM_BUS_PID:-}" ]] && kill "$SYSTEM_BUS_PID" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

# Everything of the session lives in the work folder, set before the bus.
export HOME="$work/home" XDG_RUNTIME_DIR="$work/runtime"
export XDG_CONFIG_HOME="$HOME/.config" XDG_DATA_HOME="$HOME/.local/share" XDG_CACHE_HOME="$HOME/.cache"
mkdir -p "$HOME" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"
unset DBUS_SESSION_BUS_ADDRESS WAYLAND_DISPLAY QT_QPA_PLATFORM SESSION_MANAGER
export XDG_SESSION_TYPE=x11 LANG=C.UTF-8 LC_ALL=C.UTF-8 NO_AT_BRIDGE=1
# Under AddressSanitizer: Qt's X11 event reader passes strndup a reply
# buffer without a terminator, which strict string checks take for an
# overflow in every X11 client (sulkbox and the screen helper alike).
if [[ -n "${ASAN_OPTIONS:-}" ]]; then export ASAN_OPTIONS="$ASAN_OPTIONS:strict_string_checks=0"; fi

# GNOME Shell wants a system bus; an empty private one is enough.
dbus-daemon --session --nofork --address="unix:path=$work/system_bus" >/dev/null 2>&1 &
SYSTEM_BUS_PID=$!
export DBUS_SYSTEM_BUS_ADDRESS="unix:path=$work/system_bus"

# Xvfb picks a free display and writes its number.
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$work/display" >"$OUT/xvfb.log" 2>&1 &
XVFB_PID=$!
wait_for 30 "Xvfb" grep -q . "$work/display"
export DISPLAY=":$(head -1 "$work/display")"
wait_for 10 "the system bus" test -S "$work/system_bus"
say "display $DISPLAY"

dbus-run-session -- "$0" --in-session "$SULKBOX" "$SHOT" "$OUT"
