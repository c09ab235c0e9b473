# Shared by the scripts: what they need is installed here, once.
# shellcheck shell=bash disable=SC2034  # the packages are for the scripts

set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)  # which the 32-bit Wine sees, unlike a link to it
cd "$root"

build_packages=(g++ cmake ninja-build pkg-config qt6-base-dev libxcb1-dev libatspi2.0-dev libgtest-dev libbenchmark-dev zlib1g-dev
    binutils-mingw-w64-x86-64)
display_packages=(xvfb xdotool imagemagick fonts-dejavu-core dbus-daemon at-spi2-core
    weston qt6-wayland)
windows_packages=(libz-mingw-w64-dev g++-mingw-w64-x86-64-win32 g++-mingw-w64-i686-win32 googletest)
wine_packages=(wine wine64 fonts-wine)
check_packages=(git clang-format clang-tidy shellcheck)
fuzz_packages=(clang libclang-rt-14-dev)

# These change what compilers and linkers make, but what is made with them isn't made again without them.
unset COMPILER_PATH CPATH CPLUS_INCLUDE_PATH C_INCLUDE_PATH GCC_EXEC_PREFIX LD_RUN_PATH LIBRARY_PATH

say() { printf '%s\n' "$*"; }

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# Installs the Debian packages that are missing; asks nothing and does nothing when all are there.
need() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    say "Installing ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -y -qq -o DPkg::Lock::Timeout=600 \
        install --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET [TARGET...]: configures once, then builds what has changed. Prints the last line of it, or all of a
# failure.
build() {
    local preset=$1 log result=0
    shift
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
    log=$(mktemp)
    cmake --build "build/$preset" ${1:+--target "$@"} >"$log" 2>&1 || result=$?
    if [ "$result" -eq 0 ]; then tail -n 1 "$log"; else cat "$log"; fi
    rm -f "$log"
    return "$result"
}

# on_display COMMAND...: runs the command, or a function, on a virtual display of its own, which ends with it. The server
# itself finds a free number, so that runs at the same time don't take each other's.
on_display() (
    exec {output}< <(exec Xvfb -displayfd 1 -screen 0 1024x768x24 2>/dev/null)
    server=$!
    trap 'kill "$server" && wait "$server" || true' EXIT
    read -r number <&"$output" || { say "Xvfb doesn't start" >&2; exit 1; }
    exec {output}<&-
    export "DISPLAY=:$number"
    "$@"
)

# wait_until_drawn WINDOW: until its picture has several colors and stays the same, for 10 seconds at most.
wait_until_drawn() {
    local before='' now='' tries
    for ((tries = 0; tries < 100; ++tries)); do
        now=$(import -window "$1" -format '%k %#' info: 2>/dev/null || true)
        [[ -z $now || $now = '1 '* || $now != "$before" ]] || return 0
        before=$now
        sleep 0.1
    done
    echo "The window should be drawn within 10 seconds and isn't"
    return 1
}

count_windows() { xdotool search --maxdepth 1 --onlyvisible --name '' 2>/dev/null | wc -l; }

# press_menu_key WINDOW KEY LETTER: opens the window's menu with the key, and presses the letter once the menu is there.
press_menu_key() {
    local before tries
    before=$(count_windows)
    xdotool windowfocus --sync "$1" key "$2"
    for ((tries = 0; tries < 100; ++tries)); do
        [ "$(count_windows)" -le "$before" ] || { xdotool key "$3" && return; }
        sleep 0.1
    done
    echo "The menu should open within 10 seconds and doesn't"
    return 1
}

# note_sum NAME PASSED FAILED: what .ci/run adds up.
note_sum() {
    mkdir -p build/results
    printf '%s %s\n' "$2" "$3" >"build/results/$1"
}

# run_ctest NAME ARGS...: runs ctest and notes its sum under the name. Skipped tests count neither way.
run_ctest() {
    local name=$1 log result=0 failed all skipped
    shift
    log=$(mktemp)
    ctest --output-on-failure --no-tests=error "$@" 2>&1 | tee "$log" || result=$?
    read -r failed all < <(sed -n -E 's/^[0-9]+% tests passed, ([0-9]+) tests failed out of ([0-9]+)$/\1 \2/p' "$log") ||
        read -r failed all <<<"1 1"  # it never came to a sum
    skipped=$(grep -c '(Skipped)$' "$log" || true)
    rm -f "$log"
    note_sum "$name" $((all - failed - skipped)) "$failed"
    [ "$result" -eq 0 ] && [ "$failed" -eq 0 ]
}

package_packages=(binutils dpkg-dev gzip pandoc zip)

# The program's version, such as 1.0.0.
project_version() {
    sed -n -E 's/^project\(.* VERSION ([0-9.]+).*/\1/p' CMakeLists.txt
}
