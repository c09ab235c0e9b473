# The tests of the Debian package: it is read, installed, started by a user and removed.
# shellcheck shell=bash disable=SC2154,SC2164  # test-packages has the rest, and `check` ends at a failed cd

# Whether the package is installed, or was and left something.
on_this_system() { dpkg-query -W -f '${Status}\n' tidewright 2>/dev/null | grep -q -v ' not-installed$'; }

apt() { as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -y -o DPkg::Lock::Timeout=60 -o Dpkg::Use-Pty=0 "$@"; }

remove_deb() {
    ! on_this_system || apt purge tidewright >/dev/null
    ! mountpoint -q "$work/disk" || as_root umount -l "$work/disk"
}

deb_contents() {
    local library package
    expect "the list of what isn't plainly root's to write and everyone's to read" \
        "lrwxrwxrwx root/root ./usr/bin/tidewright lrwxrwxrwx root/root ./usr/bin/tidewright-restore \
$(printf -- '-rwxr-xr-x root/root ./usr/libexec/tidewright/%s ' tidewright tidewright-{later,restore,start})" \
        "$(dpkg-deb -c "$deb" | awk '$1 " " $2 !~ /^(drwxr-xr-x|-rw-r--r--) root\/root$/ { print $1, $2, $6 }' | sort -k3 | tr '\n' ' ')"

    dpkg-deb -x "$deb" "$work/unpacked"
    # The compiler cuts short words in two, which it then takes for misspelled.
    expect_silence lintian --allow-root --pedantic -I -E --suppress-tags spelling-error-in-binary "$deb"
    # It doesn't know the place where the program would be at home.
    appstreamcli validate --no-net --strict --override cid-maybe-not-rdns=pedantic "$work"/unpacked/usr/share/metainfo/*
    gunzip <"$work/unpacked/usr/share/doc/tidewright/changelog.gz" >"$work/changelog"
    expect "the newest version in the changelog" "$version" "$(dpkg-parsechangelog -l "$work/changelog" -S Version)"
    objdump -p "$work"/unpacked/usr/libexec/tidewright/* | awk '$1 == "NEEDED" { print $2 }' >"$work/libraries"
    while read -r library; do
        package=$(dpkg -S "*/$(gcc -print-multiarch)/$library" | sed 's/:.*//')
        dpkg-deb -f "$deb" Depends | sed 's/ ([^)]*)//g; s/, /\n/g' | grep -q -x -F "$package" ||
            expect "the package of $library" "among the dependencies" "$package"
    done <"$work/libraries"
}

# What lets an intruder do less: relocations that can't be written, all functions bound at the start, an address of
# the loader's choice, a guard of the stack.
deb_hardening() {
    local program header
    for program in "$work"/unpacked/usr/libexec/tidewright/*; do
        header=$(readelf -W -h -l -d --dyn-syms "$program")
        for text in ' GNU_RELRO ' ' BIND_NOW' ' NOW PIE' ' __stack_chk_fail@'; do
            grep -q -F -e "$text" <<<"$header" || expect "$(basename "$program")" "with$text" "without it"
        done
    done
}

# The paths of the package that are there, and what its name is found in; other packages may come and go meanwhile.
package_traces() {
    dpkg-deb -c "$deb" | sed -n 's,.* \./,/,p' | while read -r path; do [ ! -e "$path" ] || say "$path"; done
    # What goes while find looks isn't the package's.
    as_root find /usr /etc /var/lib/dpkg/info -ignore_readdir_race -name '*tidewright*'
}

deb_installs() {
    package_traces >"$work/before"
    chmod 755 "$work"  # for apt's own user
    cp "$deb" "$work"
    apt install --no-install-recommends "$work/$(basename "$deb")"
    expect_silence dpkg -V tidewright
    local entry=/usr/share/applications/tidewright.desktop
    expect "the menu's command" /usr/bin/tidewright "$(command -v "$(sed -n '/^Exec=/{s///p;q}' "$entry")")"
    expect "the menu's icon" tidewright "$(sed -n 's/^Icon=//p' "$entry")"
}

# The icons are the two pictures of the program's own, 32 and 16 pixels wide, enlarged.
deb_icons() {
    local row size picture factor
    for row in "16 1 1" "32 0 1" "48 1 3" "64 0 2" "128 0 4"; do
        read -r size picture factor <<<"$row"
        convert "/usr/share/icons/hicolor/${size}x$size/apps/tidewright.png" -depth 8 "rgba:$work/icon"
        convert "$root/resources/tidewright.ico[$picture]" -filter point -resize "$((factor * 100))%" \
            -depth 8 "rgba:$work/expected"
        expect_same "the icon of $size pixels and the program's own" "$work/icon" "$work/expected"
    done
}

# A user who isn't root, with blanks in the name of his home, and a game that isn't prepared.
make_user() {
    home="$work/home of a user"
    tools=$home/.local/share/tidewright
    user_game="$work/prefix/drive_c/Program Files (x86)/Maxis/The Sims"
    mkdir "$home" "$work/run"
    build/native/make_sample installation "$work/prefix"
    chmod 700 "$work/run"
    [ "$(id -u)" -ne 0 ] || chown -R nobody:nogroup "$work"
}

# as_user VARIABLE=VALUE... COMMAND...: without a display, unless the command brings one.
as_user() {
    local step_down=()
    [ "$(id -u)" -ne 0 ] || step_down=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
    "${step_down[@]}" env -i PATH=/usr/bin:/bin HOME="$home" WINEPREFIX="$work/prefix" XDG_RUNTIME_DIR="$work/run" "$@"
}

# open_for_user [yes]: with "yes" the start is expected to ask whether it may prepare the game.
open_for_user() { on_display open_on_this_display "${1:-}"; }
open_on_this_display() {
    as_user DISPLAY="$DISPLAY" asks_first="$1" bash -uc "$display_functions; open_and_close tidewright"
}

# expect_start WHAT CODE VARIABLE=VALUE... COMMAND...: without a display the program makes its checks and ends with 0
# where only the window is missing.
expect_start() {
    local what=$1 code=$2 status=0
    shift 2
    as_user "$@" || status=$?
    expect "the exit code $what" "$code" "$status"
}

# expect_refusal WHAT CODE WORDS VARIABLE=VALUE... COMMAND...: the start must end with this code, and say this.
expect_refusal() {
    local what=$1 code=$2 expected=$3 words status=0
    shift 3
    words=$(as_user "$@" 2>&1) || status=$?
    expect "the exit code $what" "$code" "$status"
    grep -q -F -e "$expected" <<<"$words" || expect "what is said $what" "with \"$expected\"" "$words"
}

deb_starts() {
    expect_refusal "of a first start that can't ask" 1 "Without a display this needs the option --yes." tidewright
    open_for_user yes
    expect_same "the user's skinsets.cfg and the source's" "$tools/skinsets.cfg" "$root/data/skinsets.cfg"
    expect "the size of the user's famtemplate" 232 "$(stat -c %s "$tools/famtemplate")"
    expect "the list of the user's files" "Template.iff famtemplate restore-points skinsets.cfg" \
        "$(find "$tools" -mindepth 1 -maxdepth 1 -printf '%f\n' | LC_ALL=C sort | xargs)"
    [ -s "$user_game/GameData/Skins/$skin" ] || expect "the skin" "in the game" "not there"
}

sums_of() { find "$1" -type f -exec sha256sum {} + | sort; }

# Also those that version 1.1.0 has left there, with its link to the package's skin sets, and the prefix that it used.
deb_keeps_edits() {
    local file prefix
    prefix=$(sums_of "$work/prefix")
    as_user env -C "$tools" sh -c 'rm famtemplate && echo mine >>Template.iff && echo "# mine" >>skinsets.cfg'
    as_user env -C "$tools" ln -s /usr/share/tidewright/skinsets-original.cfg .
    cp "$tools"/{Template.iff,skinsets.cfg} "$work"
    open_for_user yes
    expect "the files of the prefix" "$prefix" "$(sums_of "$work/prefix")"
    for file in Template.iff skinsets.cfg; do
        expect_same "the edited $file before and after a start" "$work/$file" "$tools/$file"
    done
    expect "the size of the missing famtemplate" 232 "$(stat -c %s "$tools/famtemplate")"
    open_for_user
}

deb_links() {
    as_user env -C "$tools" ln -sf /not/mounted/famtemplate .
    expect_refusal "where the user's link leads nowhere" 1 "famtemplate is there, but leads to no file." tidewright --yes
    expect "the user's link" /not/mounted/famtemplate "$(readlink "$tools/famtemplate")"
}

# Without a terminal but with a display, what the start says is in a box. Enter closes it.
deb_box() { on_display refuse_on_this_display; }
refuse_on_this_display() {
    local box status=0
    as_user DISPLAY="$DISPLAY" HOME=/proc/home tidewright >"$work/said" 2>&1 &
    box=$(timeout 30 xdotool search --sync --onlyvisible --name '^Tidewright Start$') || expect "the box" "there" "not there"
    wait_until_drawn "$box"
    xdotool windowfocus --sync "$box" key Return
    timeout 30 tail --pid=$! -f /dev/null || expect "the start" "at its end" "still there"
    wait $! || status=$?
    expect "the exit code behind the box" 1 "$status"
}

deb_places() {
    local data=$work/data
    as_user mkdir -p "$data"
    expect_start "with \$XDG_DATA_HOME" 0 XDG_DATA_HOME="$data" sh -c 'tidewright --prepare --yes && tidewright --yes'
    [ -s "$data/tidewright/skinsets.cfg" ] || expect "skinsets.cfg" "in $data/tidewright" "not there"
    as_user XDG_DATA_HOME=data sh -c "cd '$work/run' && exec tidewright --version" >"$work/said"
    expect "the version" "Tidewright $version" "$(cat "$work/said")"
    expect_refusal "with a home that can't be made" 1 /proc/home/.local/share/tidewright HOME=/proc/home tidewright
    expect_refusal "without a game" 255 "$work/no prefix" WINEPREFIX="$work/no prefix" XDG_DATA_HOME="$data" tidewright
    as_user sh -c "rm -r '$data/tidewright' && mkdir '$data/tidewright' && chmod 555 '$data/tidewright'"
    expect_refusal "where the directory can't be written" 1 "$data/tidewright" XDG_DATA_HOME="$data" tidewright --yes
    as_user chmod 755 "$data/tidewright"
    as_root mv /usr/share/tidewright /usr/share/tidewright-moved
    trap 'as_root mv /usr/share/tidewright-moved /usr/share/tidewright' EXIT
    expect_refusal "where the package's own files are gone" 1 "Please install or unpack the program again." \
        XDG_DATA_HOME="$data" tidewright --prepare --yes
}

# resize_disk SIZE FILES: a disk on which so many bytes and files have room.
resize_disk() { as_root mount -t tmpfs -o "${disk_options:-}size=$1,nr_inodes=$2,mode=1777" tidewright-test "$disk"; }

# The disk is full before the directory, and before the template. With more room all is made.
deb_full_disk() {
    disk=$work/disk
    mkdir "$disk"
    resize_disk 4k 1
    trap 'as_root umount -l "$disk"' EXIT
    disk_options=remount,
    expect_refusal "on a disk without room for the directory" 1 "$disk/tidewright" XDG_DATA_HOME="$disk" tidewright
    resize_disk 4k 100
    expect_start "on a disk without room for the template" 1 XDG_DATA_HOME="$disk" tidewright --prepare --yes
    [ ! -e "$disk/tidewright/Template.iff" ] || expect "the template" "not there" "there in part"
    resize_disk 40m 1000
    expect_start "once there is room" 0 XDG_DATA_HOME="$disk" sh -c 'tidewright --prepare --yes && tidewright --yes'
    [ -s "$disk/tidewright/Template.iff" ] || expect "the template" "there" "not there"
}

deb_leaves_nothing() {
    apt purge tidewright
    package_traces >"$work/after"
    diff "$work/before" "$work/after" || { say "the system should be as before the package was installed" && exit 1; }
    [ -s "$tools/skinsets.cfg" ] || expect "the user's own skinsets.cfg" "where it was" "gone"
}

test_deb() {
    check "deb: owners, modes, changelog, Debian's own checks, and the package of each library it needs" deb_contents
    check "deb: programs that are hard to break into" deb_hardening
    check "deb: installs, with its entry in the menu" deb_installs
    check "deb: icons of five sizes, like the program's own" deb_icons
    make_user
    check "deb: a user's first start asks, prepares the game and opens the window" deb_starts
    check "deb: a later start keeps what he edited and brings what is missing" deb_keeps_edits
    check "deb: a link of his that leads nowhere" deb_links
    check "deb: other places for his directory, and places where none can be" deb_places
    check "deb: a box where no terminal shows what the start says" deb_box
    check "deb: a full disk" deb_full_disk
    check "deb: nothing stays behind but what is the user's" deb_leaves_nothing
}
