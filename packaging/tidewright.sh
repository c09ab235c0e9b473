#!/bin/sh
# tidewright                         starts Tidewright, and first makes the game ready for it if it isn't.
# tidewright --prepare [OPTION...]   prepares the game alone; the options are those of tidewright-prepare.
# Both work in a directory of the user's own.
set -u
programs=/usr/libexec/tidewright
originals=/usr/share/tidewright

# A start from the menu has no terminal: there only a box is seen, by whichever program shows one.
complain() {
    echo "tidewright: $*" >&2
    [ ! -t 2 ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || return 0
    if command -v zenity; then
        zenity --error --no-markup --title Tidewright --text "$*"
    elif command -v kdialog; then
        kdialog --title Tidewright --error "$*"
    elif command -v xmessage; then
        xmessage -title Tidewright -default okay "$*"
    fi >/dev/null 2>&1
}

fail() {
    complain "$@"
    exit 1
}

data=${XDG_DATA_HOME:-}
case $data in
    /*) ;;
    *)
        [ -n "${HOME:-}" ] || fail "HOME has no value, so there is no place for skinsets.cfg"
        data=$HOME/.local/share ;;
esac
own=$data/tidewright

# Earlier versions linked files of their own, which are gone. Another link may lead to a disk that isn't there today.
check_link() {
    [ -L "$1" ] && [ ! -e "$1" ] || return 0
    case $(readlink "$1") in
        "$originals"/*) rm "$1" 2>/dev/null || fail "can't write into $own" ;;
        *) fail "$own/$1 is a link to a file that isn't there: bring the file back or remove the link" ;;
    esac
}

# The preparing program makes skinsets.cfg of it.
bring_original() {
    [ -s "$originals/skinsets-original.cfg" ] || fail "$originals isn't complete: install the package again"
    # A link may be there that leads nowhere, or a file that a full disk left empty.
    [ -s skinsets-original.cfg ] || ln -sf "$originals/skinsets-original.cfg" . 2>/dev/null || fail "can't write into $own"
}

# The box about a game that isn't found can't know that there is Wine here.
prepare() {
    "$programs/tidewright-prepare" "$@" && return
    code=$?
    [ "$code" -ne 255 ] ||
        complain "install the package wine, and The Sims with it, or set WINEPREFIX to the game's prefix"
    exit "$code"
}

if ! mkdir -p "$own" 2>/dev/null || ! cd "$own" 2>/dev/null; then
    fail "can't use the directory $own"
fi
for file in skinsets.cfg Template.iff famtemplate; do
    check_link "$file"
done
[ -s skinsets.cfg ] || bring_original
if [ "${1:-}" = --prepare ]; then
    shift
    prepare "$@"
    exit
fi
prepare --if-needed
exec "$programs/tidewright" "$@"
