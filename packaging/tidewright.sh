#!/bin/sh
# Starts Tidewright in a directory of the user's own, and puts there first what it lacks of the program's data files.
set -u
originals=/usr/share/tidewright

data=${XDG_DATA_HOME:-}
case $data in
    /*) ;;
    *) data=${HOME:?"has no value, so there is no place for skinsets.cfg"}/.local/share ;;
esac
own=$data/tidewright

# A copy, for the user to edit. It comes whole or not at all: a piece of it would pass for an edited one ever after.
bring_skin_sets() {
    [ -e "$own/skinsets.cfg" ] && return
    cp "$originals/skinsets.cfg" "$own/skinsets.cfg.$$" && mv -n "$own/skinsets.cfg.$$" "$own/skinsets.cfg"
    result=$?
    rm -f "$own/skinsets.cfg.$$"
    return "$result"
}

# Links, so that the templates stay those of the installed program. A user's own file in place of one stays too.
bring_template() {
    [ -e "$own/$1" ] || ln -s "$originals/$1" "$own/$1"
}

bring_what_is_missing() {
    mkdir -p "$own" && bring_skin_sets && bring_template Template.iff && bring_template famtemplate
}

if ! bring_what_is_missing; then
    if [ -e "$own/skinsets.cfg" ]; then
        echo "tidewright: not started, because files are missing in $own" >&2
        exit 1
    fi
    echo "tidewright: no $own can be made, so the heads are those of $originals/skinsets.cfg" >&2
    own=$originals
fi

cd "$own" && exec /usr/lib/tidewright/tidewright "$@"
