# Shared by the scripts that run Windows programs: Wine, quiet and in a prefix of our own.
# shellcheck shell=bash disable=SC2034,SC2154  # `root` is lib.sh's, `failed` for the scripts

# Without the overrides Wine would offer to download parts that aren't needed here, and would put entries into the
# user's own menu.
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
export LC_ALL=C     # whose code page is 1252
export TMPDIR=/tmp  # which the 32-bit Wine sees

kinds=()  # of Windows programs, x86 and x64, that are to run

# choose_kinds KIND...: x86 comes first. Where the 32-bit programs can't run this fails, unless the caller of the script
# has said by name to go on without them.
choose_kinds() {
    kinds=("$@")
    [ "$1" = x86 ] || return 0
    if [ "${TIDEWRIGHT_WITHOUT_32_BITS:-}" = yes ]; then
        say "TIDEWRIGHT_WITHOUT_32_BITS=yes: the 32-bit programs are NOT run"
        kinds=("${@:2}")
    elif ! scripts/wine32; then
        say "The 32-bit programs can't run here and were NOT run. With TIDEWRIGHT_WITHOUT_32_BITS=yes the rest is." >&2
        return 1
    fi
}

# use_wine KIND: `wine` runs programs of this kind from then on.
use_wine() { [ "$1" = x64 ] || PATH=$root/build/wine32/bin:$PATH; }

# for_each_kind FUNCTION ARGS...: calls FUNCTION KIND ARGS for each kind, all at the same time, each in a shell of its
# own with its Wine. What the first says shows at once, then what the next has said. A failure sets `failed`, so that no
# condition of the caller's lets a function go on behind its first failure.
failed=0 processes=() logs=()
for_each_kind() {
    local i
    trap end_jobs EXIT
    set -m  # a process group for each
    for ((i = 0; i < ${#kinds[@]}; ++i)); do
        logs[i]=$(mktemp)
        (use_wine "${kinds[i]}"; "$1" "${kinds[i]}" "${@:2}") >"${logs[i]}" 2>&1 </dev/null &
        processes[i]=$!
    done
    set +m
    for ((i = 0; i < ${#kinds[@]}; ++i)); do
        tail -n +1 -f --pid="${processes[i]}" "${logs[i]}"
        wait "${processes[i]}" || failed=1
    done
    end_jobs
}

# shellcheck disable=SC2317  # for_each_kind calls it
end_jobs() {
    local job
    for job in $(jobs -p); do kill -- "-$job" 2>/dev/null || true; done
    rm -f "${logs[@]}"
    processes=() logs=()
}

own_prefix=

# Ends what runs in the prefix of new_windows, if that was called; another prefix may be a player's, in the middle of a
# game.
stop_windows() {
    [ -z "$own_prefix" ] || WINEPREFIX=$own_prefix wineserver -k || true
}

# Ends it and takes its 700 MB away, if there is one.
remove_windows() {
    [ -n "$own_prefix" ] || return 0
    stop_windows
    wineserver -w
    rm -rf "$own_prefix"
    own_prefix=
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
