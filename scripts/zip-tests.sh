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

# A first evening, from the question before an unprepared game to the report. It sees what is made outside the game's
# saves; here only the folder is left.
zip_plays() {
    local own
    new_windows "$windows"
    mkdir "$WINEPREFIX/drive_c/My Games"
    cd "$WINEPREFIX/drive_c/My Games"
    unzip -q "$zip"
    cd Tidewright-*
    TIDEWRIGHT_WINDOWS_PROGRAMS=$PWD QT_QPA_PLATFORM=offscreen \
        "$root/build/native/stories" --gtest_filter=Stories.AnEveningOfPlayByKeysAlone
    own=$(echo "$WINEPREFIX"/drive_c/users/*/AppData/Local/Tidewright)
    expect_same "skinsets.cfg and the shipped one" "$own/skinsets.cfg" skinsets-original.cfg
    expect "the count of files beside the programs" "$(unzip -Z1 "$zip" | wc -l)" "$(find . -type f | wc -l)"
}

test_zip() {
    check "zip: one folder with seven files, texts with Windows' line ends, programs that start on XP by their headers" zip_files
    if ! choose_kinds x86; then
        failed=$((failed + 1))
    elif [ ${#kinds[@]} -gt 0 ]; then
        use_wine x86
        check "zip: unpacked anywhere, its 32-bit programs play an evening under Wine, from a question to the report" \
            zip_plays
    fi
}
