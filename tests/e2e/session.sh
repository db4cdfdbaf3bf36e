# The desktop face in a private X session: the pieces the end-to-end tests
# (tests/e2e/*.sh) and the desktop benchmark (bench/desktop.sh) share.
# Sourced, not run: it starts nothing by itself, and when the script exits it
# ends the processes listed in ENDING_PIDS and removes the work folder.
#
# Each script runs twice: outside, where it makes a private home and X server
# (private_home, start_xvfb) and runs itself again under dbus-run-session;
# inside, where it starts a tray host and sulkbox on that private bus.

say() { echo "$(basename "$0" .sh): $*" >&2; }
fail() { say "FAIL: $*"; exit 1; }

# wait_for SECONDS WHAT COMMAND...: runs COMMAND until it succeeds; fails
# after SECONDS, naming WHAT it waited for.
wait_for() {
    local seconds=$1 what=$2
    shift 2
    local end=$((SECONDS + seconds))
    until "$@"; do
        ((SECONDS < end)) || fail "timed out after ${seconds}s waiting for $what"
        sleep 0.25
    done
}

# have_tools TOOL...: false, saying which, when one is not installed.
have_tools() {
    local tool
    for tool; do
        command -v "$tool" >/dev/null || { say "$tool is not installed (scripts/deps.sh --test)"; return 1; }
    done
}

# However the script ends, the processes it lists in ENDING_PIDS end too,
# and the work folder goes.
ENDING_PIDS=()
end_session() {
    local pid
    for pid in "${ENDING_PIDS[@]}"; do kill "$pid" 2>/dev/null || true; done
    wait 2>/dev/null || true
    if [[ -n "${work:-}" ]]; then rm -rf "$work"; fi
}
trap end_session EXIT

# private_home: a new work folder ($work) holding the home, the XDG folders
# and the runtime folder; nothing of the caller's session (its bus, Wayland
# display, platform choice) passes on.
private_home() {
    work=$(mktemp -d)
    export HOME="$work/home" XDG_RUNTIME_DIR="$work/runtime"
    export XDG_CONFIG_HOME="$HOME/.config" XDG_DATA_HOME="$HOME/.local/share" XDG_CACHE_HOME="$HOME/.cache"
    mkdir -p "$HOME" "$XDG_RUNTIME_DIR"
    chmod 700 "$XDG_RUNTIME_DIR"
    unset DBUS_SESSION_BUS_ADDRESS WAYLAND_DISPLAY QT_QPA_PLATFORM SESSION_MANAGER
    export LANG=C.UTF-8 LC_ALL=C.UTF-8 NO_AT_BRIDGE=1
    # Under AddressSanitizer: Qt's X11 event reader passes strndup a reply
    # buffer without a terminator, which strict string checks take for an
    # overflow in every X11 client (sulkbox and the screen helper alike).
    if [[ -n "${ASAN_OPTIONS:-}" ]]; then export ASAN_OPTIONS="$ASAN_OPTIONS:strict_string_checks=0"; fi
}

# start_xvfb LOG: an X server on a free display (1280×800) for DISPLAY,
# ended on exit.
start_xvfb() {
    Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$work/display" >"$1" 2>&1 &
    ENDING_PIDS+=("$!")
    wait_for 30 "Xvfb" grep -q . "$work/display"
    export DISPLAY=":$(head -1 "$work/display")"
}

# --- inside the session ---------------------------------------------------------

# has_owner NAME: whether a connection owns NAME on the session bus.
has_owner() {
    gdbus call --session --dest org.freedesktop.DBus --object-path / \
        --method org.freedesktop.DBus.NameHasOwner "$1" 2>/dev/null | grep -q true
}

# Sets screen_w and screen_h.
screen_size() {
    read -r screen_w screen_h < <(xdpyinfo | awk '/dimensions:/ {split($2, d, "x"); print d[1], d[2]}')
}

# settled_change BEFORE NOW WIDTH HEIGHT [X Y W H]: shoots the top WIDTH×HEIGHT
# of the screen into NOW and compares it with BEFORE (only X Y W H of it when
# given). True once it differs, the same way twice running: an item has
# appeared and finished drawing. The box of the difference is in $box.
box=none
settled_previous=
settled_change() {
    local before=$1 now=$2 width=$3 height=$4
    shift 4
    "$SHOT" shot "$now" 0 0 "$width" "$height"
    box=$("$SHOT" diff "$before" "$now" "$@")
    [[ "$box" != none && "$box" == "$settled_previous" ]] && return 0
    settled_previous=$box
    return 1
}

# The panel window, when it shows.
panel_window() { xdotool search --onlyvisible --class '^sulkbox$' 2>/dev/null | head -1; }
panel_open() { [[ -n "$(panel_window)" ]]; }
panel_closed() { [[ -z "$(panel_window)" ]]; }

# Numbers mode, as the preferences would set it; the running sulkbox sees
# the file change.
numbers_mode() {
    mkdir -p "$XDG_CONFIG_HOME/sulkbox"
    printf '[General]\nmoodEnabled=false\n' >"$XDG_CONFIG_HOME/sulkbox/sulkbox.conf"
}
