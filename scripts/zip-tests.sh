# The tests of the zip for Windows: its files, and its programs started in a game's directory under Wine.
# shellcheck shell=bash disable=SC2154,SC2164  # test-packages has the rest, and `check` ends at a failed cd

zip_files() {
    expect "the list of files" \
        "GameData/Skins/$skin famtemplate skinsets-original.cfg tidewright-guide.html tidewright-prepare.exe \
tidewright-readme.txt tidewright.exe" \
        "$(unzip -Z1 "$zip" | LC_ALL=C sort | xargs)"
    unzip -q "$zip" -d "$work/unzipped"
    cd "$work/unzipped"
    local program text
    for program in tidewright.exe tidewright-prepare.exe; do
        expect_same "$program and the 32-bit one that was built" $program "$root/build/windows-x86/$program"
        "$root/scripts/check-exe" x86 "$PWD/$program"
    done
    tr -d '\r' <skinsets-original.cfg | cmp - "$root/data/skinsets.cfg"
    for text in skinsets-original.cfg tidewright-readme.txt; do
        expect "the count of lines without CR LF in $text" 0 "$(grep -c -v $'\r$' "$text" || true)"
    done
    expect "the first line" "Tidewright $version" "$(head -n 1 tidewright-readme.txt | tr -d '\r')"
    expect "the count of pictures inside the guide" "$(grep -o '](pictures/' "$root/docs/guide.md" | wc -l)" \
        "$(grep -o '<img src="data:image/png;base64,' tidewright-guide.html | wc -l)"
}

# A new Windows with a game on its drive that isn't prepared.
make_windows() {
    rm -rf "$windows"
    mkdir -p "$windows"
    build/native/make_sample installation "$windows/sample"
    new_windows "$windows/prefix"
    set_game 'C:\Program Files (x86)\Maxis\The Sims'
    cp -r "$windows/sample/drive_c/." "$WINEPREFIX/drive_c/"
}

zip_starts() {
    cd "$WINEPREFIX/drive_c/Program Files (x86)/Maxis/The Sims"
    unzip -q "$zip"
    on_display bash -uc "$display_functions
        prepare wine tidewright-prepare.exe && open_and_close wine tidewright.exe; status=\$?; wineserver -k; exit \$status"
    expect_same "skinsets.cfg and the shipped one" skinsets.cfg skinsets-original.cfg
}

test_zip() {
    check "zip: the seven files, texts with Windows' line ends, programs that start on XP by their headers" zip_files
    if ! choose_kinds x86; then
        failed=$((failed + 1))
    elif [ ${#kinds[@]} -gt 0 ]; then
        use_wine x86
        make_windows
        check "zip: unpacked into a game's directory, its 32-bit programs prepare the game, start under Wine and end" zip_starts
    fi
}
