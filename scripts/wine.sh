# Shared by the scripts that run Windows programs: Wine, quiet and in a prefix of our own.
# shellcheck shell=bash

# Without the overrides Wine would offer to download parts that aren't needed here, and would put entries into the
# user's own menu.
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
export LC_ALL=C  # whose code page is 1252

own_prefix=

# Ends what runs in the prefix of new_windows, if that was called; another prefix may be a player's, in the middle of a
# game.
stop_windows() {
    [ -z "$own_prefix" ] || WINEPREFIX=$own_prefix wineserver -k || true
}

# new_windows DIR: a new Windows in that directory, which is WINEPREFIX from then on.
new_windows() {
    own_prefix=$1
    export WINEPREFIX=$1
    rm -rf "$WINEPREFIX"
    env -u DISPLAY wine wineboot --init >/dev/null 2>&1
    # Where no window manager answers, Wine waits two seconds for one with each window, unless it is to do without.
    env -u DISPLAY wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null
    wineserver -w  # what was started without a display stays without one
}

# set_game WINDOWS_PATH: makes this directory the game's, for 32-bit programs.
set_game() {
    env -u DISPLAY wine reg add 'HKLM\Software\Maxis\The Sims' /v SIMS_DATA /d "$1" /f /reg:32 >/dev/null
    wineserver -w
}
