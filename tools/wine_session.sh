# shellcheck shell=bash
# Sourced by scripts that run Windows programs: one X server and one Wine server for the whole run, both ended on exit.
# Call start_wine_session; it sets DISPLAY and what Wine needs.

WINEPREFIX=${ZT_WINEPREFIX:-$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/wineprefix}  # never one of the user's: it is made anew
export WINEPREFIX
export WINEARCH=win64
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
export LC_ALL=C.UTF-8

zt_xvfb_pid=

end_wine_session()
{
    wineserver -k 2>/dev/null || true
    if [ -n "$zt_xvfb_pid" ]; then
        kill "$zt_xvfb_pid" 2>/dev/null || true
        wait "$zt_xvfb_pid" 2>/dev/null || true
        zt_xvfb_pid=
    fi
}

# Starts an X server of our own on a display number that it chooses itself. It repeats no keys that are held: where the machine stands
# still for a moment, every key would be.
start_display()
{
    local number_file
    number_file=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -r 3>"$number_file" >/dev/null 2>&1 </dev/null &
    zt_xvfb_pid=$!
    local tries=100
    while [ ! -s "$number_file" ] && [ $tries -gt 0 ] && kill -0 "$zt_xvfb_pid" 2>/dev/null; do
        sleep 0.1
        tries=$((tries - 1))
    done
    DISPLAY=:$(cat "$number_file")
    rm -f "$number_file"
    if [ "$DISPLAY" = : ]; then
        echo "FAILED: the X server Xvfb did not start" >&2
        return 1
    fi
    export DISPLAY
}

# Makes the Wine prefix on first use: both architectures, no crash dialogs that would wait for a click.
prepare_prefix()
{
    if [ -e "$WINEPREFIX" ] && [ ! -O "$WINEPREFIX" ]; then
        echo "FAILED: $WINEPREFIX belongs to another user; remove it" >&2
        return 1
    fi
    [ -e "$WINEPREFIX/ready" ] && return
    echo "Preparing the Wine prefix"
    mkdir -p "$(dirname "$WINEPREFIX")"
    rm -rf "$WINEPREFIX"
    wine wineboot --init </dev/null >/dev/null 2>&1 &&
        wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f </dev/null >/dev/null 2>&1 &&
        wineserver -w &&
        [ -d "$WINEPREFIX/drive_c/windows/syswow64" ] &&
        touch "$WINEPREFIX/ready" && return
    echo "FAILED: Wine could not make a prefix for 32-bit and 64-bit programs in $WINEPREFIX" >&2
    return 1
}

# start_wine_session new-display|any-display: any-display takes an X server that is already there.
start_wine_session()
{
    trap end_wine_session EXIT
    trap 'exit 130' INT TERM HUP
    if [ "$1" = new-display ] || [ -z "${DISPLAY:-}" ]; then
        start_display || return
    fi
    wineserver -k 2>/dev/null || true  # one left over would sit on a display that is gone
    prepare_prefix || return
    wineserver -p
    wine cmd /c exit </dev/null >/dev/null 2>&1  # starts Wine's services, so that no test waits for them
}
