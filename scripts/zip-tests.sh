# The tests of the zip for Windows: its files, and its programs started under Wine.
# shellcheck shell=bash disable=SC2154,SC2164  # test-packages has the rest, and `check` ends at a failed cd

zip_files() {
    local folder=Tidewright-$version program text
    expect "the list of files" \
        "$(printf "$folder/%s " skinsets-original.cfg tidewright-{guide.html,later.exe,readme.txt,restore.exe,start.exe} tidewright.exe)" \
        "$(unzip -Z1 "$zip" | LC_ALL=C sort | tr '\n' ' ')"
    unzip -q "$zip" -d "$work/unzipped"
    cd "$work/unzipped/$folder"
    for program in *.exe; do
        expect_same "$program and the 32-bit one that was built" "$program" "$root/build/windows-x86/$program"
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

# Of the package only the skin goes into the game's directory.
zip_starts() {
    local drive=$WINEPREFIX/drive_c own
    find "$drive/Program Files (x86)" -type f | sort >"$work/before"
    mkdir "$drive/Games"
    cd "$drive/Games"
    unzip -q "$zip"
    cd Tidewright-*
    asks_first=yes on_display bash -uc "$display_functions
        open_and_close wine tidewright-start.exe; status=\$?; wineserver -k; exit \$status"
    own=$(echo "$drive"/users/*/AppData/Local/Tidewright)
    expect_same "skinsets.cfg and the shipped one" "$own/skinsets.cfg" skinsets-original.cfg
    expect "the count of new files beside the programs" "$(unzip -Z1 "$zip" | wc -l)" "$(find . -type f | wc -l)"
    expect "what is new in the game's directory" "$skin" \
        "$(find "$drive/Program Files (x86)" -type f | sort | comm -13 "$work/before" - | sed 's,.*/GameData/Skins/,,')"
}

test_zip() {
    check "zip: one folder with seven files, texts with Windows' line ends, programs that start on XP by their headers" zip_files
    if ! choose_kinds x86; then
        failed=$((failed + 1))
    elif [ ${#kinds[@]} -gt 0 ]; then
        use_wine x86
        make_windows
        check "zip: unpacked anywhere, its 32-bit programs prepare the game, start under Wine and end" zip_starts
    fi
}
