#!/bin/sh
# Starts Tidewright in a directory of the user's own. First it puts the program's data files there, if they are missing.
set -u
originals=/usr/share/tidewright

data=${XDG_DATA_HOME:-}
case $data in
    /*) ;;
    *) data=${HOME:?"has no value, so there is no place for skinsets.cfg"}/.local/share ;;
esac
own=$data/tidewright

# Makes a copy that the user can edit. A copy that breaks off is removed, because it would count as edited from then on.
bring_skin_sets() {
    [ -e "$own/skinsets.cfg" ] && return
    cp "$originals/skinsets.cfg" "$own/skinsets.cfg.$$" && mv -n "$own/skinsets.cfg.$$" "$own/skinsets.cfg"
    result=$?
    rm -f "$own/skinsets.cfg.$$"
    return "$result"
}

# Makes a link, so that the template is always that of the installed program. A file of the user's own is kept.
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
