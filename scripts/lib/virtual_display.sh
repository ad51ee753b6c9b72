# shellcheck shell=bash
# An X display without a screen. Sourced, not run.

virtual_display_pid=
virtual_display_file=

# start_virtual_display WIDTHxHEIGHT: starts it and points DISPLAY at it.
start_virtual_display() {
    need_command Xvfb xvfb
    virtual_display_file=$(mktemp)
    # The server picks a free number itself and says which.
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset -r 3>"$virtual_display_file" 2>/dev/null &
    virtual_display_pid=$!
    local tries=0
    until [ -s "$virtual_display_file" ]; do
        kill -0 "$virtual_display_pid" 2>/dev/null || fail "the virtual display did not start"
        tries=$((tries + 1))
        [ "$tries" -lt 200 ] || fail "the virtual display did not answer within 10 seconds"
        sleep 0.05
    done
    DISPLAY=:$(cat "$virtual_display_file")
    export DISPLAY
    # No desktop, so no desktop's font: one that is made for screens.
    FONTCONFIG_FILE=$(cd "$(dirname "${BASH_SOURCE[0]}")/../virtual-display" && pwd)/fonts.conf
    export FONTCONFIG_FILE
}

stop_virtual_display() {
    [ -n "$virtual_display_pid" ] || return 0
    kill "$virtual_display_pid" 2>/dev/null
    wait "$virtual_display_pid" 2>/dev/null
    rm -f "$virtual_display_file"
    virtual_display_pid=
}

# window_of PID: the id of the program's window, if it has one by now.
window_of() {
    local id
    for id in $(xwininfo -root -children 2>/dev/null | awk '$1 ~ /^0x/ {print $1}'); do
        [ "$(xprop -id "$id" _NET_WM_PID 2>/dev/null | sed -n 's/.* = //p')" = "$1" ] || continue
        xprop -id "$id" WM_CLASS 2>/dev/null | grep -q '"vantor"' || continue
        xwininfo -id "$id" 2>/dev/null | grep -q 'Map State: IsViewable' || continue
        echo "$id"
        return 0
    done
    return 1
}

# wait_for_live_data PID SECONDS: until the program has drawn live figures. While it still collects
# them, it says so in the name that a minimised window goes by.
wait_for_live_data() {
    local pid=$1 window
    local end=$((SECONDS + $2))
    while [ "$SECONDS" -lt "$end" ]; do
        kill -0 "$pid" 2>/dev/null || return 1
        window=$(window_of "$pid") &&
            xprop -id "$window" _NET_WM_ICON_NAME 2>/dev/null | grep -q '= "Vantor"$' && return 0
        sleep 0.1
    done
    return 1
}
