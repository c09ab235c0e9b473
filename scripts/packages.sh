# Shared by the tests of the packages: single tests, what they expect, and a user who opens windows.
# shellcheck shell=bash disable=SC2034,SC2154  # `root` is lib.sh's, some variables are for the scripts

version=$(project_version)
zip=$root/build/packages/tidewright-$version-windows.zip
deb=$root/build/packages/tidewright_${version}_$(dpkg --print-architecture).deb
windows=$root/build/packages-windows
skin=xskin-c601fa_amanda-HEAD-HEAD.skn
work=$(mktemp -d)
passed=0
failed=0

# check WHAT COMMAND...: one test. What the command says shows only if it fails.
check() {
    local what=$1 words status
    shift
    # Not within a condition, where bash would let the command go on behind its first failure.
    set +e
    words=$(set -e && "$@" 2>&1)
    status=$?
    set -e
    if [ "$status" -eq 0 ]; then
        passed=$((passed + 1))
        say "passed  $what"
    else
        failed=$((failed + 1))
        say "FAILED  $what"
        say "        ${words//$'\n'/$'\n        '}"
    fi
}

# expect WHAT EXPECTED ACTUAL
expect() {
    [ "$2" = "$3" ] && return
    say "$1 should be \"$2\" and is \"$3\""
    exit 1
}

# expect_silence COMMAND...: it must end with 0 and say nothing.
expect_silence() {
    local words status=0
    words=$("$@") || status=$?
    expect "what ${1##*/} says" "" "$words"
    expect "the exit code of ${1##*/}" 0 "$status"
}

# expect_same WHAT FILE FILE
expect_same() { cmp "$2" "$3" || { say "$1 should be the same byte for byte" && exit 1; }; }

# The functions from here to `display_functions` are for a shell of its own on a virtual display.

# The start asks before it makes files: Enter answers.
answer_question() {
    local window
    if ! window=$(timeout 60 xdotool search --sync --onlyvisible --name '^Tidewright Start$'); then
        echo "The question should come up within 60 seconds and didn't"
        return 1
    fi
    wait_until_drawn "$window" || return 1
    xdotool windowfocus --sync "$window" key Return
    timeout 30 sh -c "while xdotool getwindowname $window; do sleep 0.1; done" >/dev/null 2>&1 ||
        { echo "The question should close within 30 seconds and didn't" && return 1; }
}

# open_and_close PROGRAM...: the main window must come up, and "Exit Without Saving" in its menu must end the program
# with 0, without another word.
open_and_close() {
    local program window status=0
    "$@" &
    program=$!
    [ -z "${asks_first:-}" ] || answer_question || return 1
    if ! window=$(timeout 60 xdotool search --sync --onlyvisible --name '^Tidewright$'); then
        kill "$program" 2>/dev/null
        echo "The window \"Tidewright\" should come up within 60 seconds and didn't"
        return 1
    fi
    wait_until_drawn "$window" && press_menu_key "$window" alt+f x
    timeout 30 tail --pid="$program" -f /dev/null || echo "The program should end within 30 seconds and didn't"
    kill "$program" 2>/dev/null
    wait "$program" || status=$?
    [ "$status" -eq 0 ] || echo "The program should end with 0 and ended with $status"
    return "$status"
}
display_functions=$(declare -f wait_until_drawn count_windows press_menu_key answer_question open_and_close)
