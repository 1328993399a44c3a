#!/bin/bash
# Compiles every Windows source, and every source shared by both systems, as Windows code. Nothing is
# linked: the headers of this system's Qt stand in for those of a Windows build.
set -u
cd "$(dirname "$0")/.." || exit 1

compiler=x86_64-w64-mingw32-g++-posix
rooms=(account app device launch logging peripherals persistence platform portalhub qml simulator)

fail() {
    echo "check-windows: $1" >&2
    exit 1
}

command -v "$compiler" >/dev/null ||
    fail "$compiler is missing; install it with: apt-get install g++-mingw-w64-x86-64-posix"
command -v qmake6 >/dev/null || fail "qmake6 is missing; install it with: apt-get install qmake6"
git rev-parse --is-inside-work-tree >/dev/null 2>&1 ||
    fail "the list of sources comes from git, and this is not a checkout"

qt_headers=$(qmake6 -query QT_INSTALL_HEADERS)
system_headers=/usr/include
[ -d "$qt_headers/QtCore" ] || fail "there are no Qt headers in $qt_headers"
[ -d "$system_headers/glog" ] || fail "glog's headers are missing; install: apt-get install libgoogle-glog-dev"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The system's own header folder holds the C library of this system, so the two foreign libraries are
# reached through a folder that has nothing else.
mkdir "$work/include"
for library in glog gflags; do
    [ -d "$system_headers/$library" ] && ln -s "$system_headers/$library" "$work/include/$library"
done

flags=(
    -std=c++20 -c -O0 -Wall -Wextra -Werror
    -DUNICODE -D_UNICODE -D_WIN32_WINNT=0x0A00
    -DGLOG_NO_ABBREVIATED_SEVERITIES -DGLOG_CUSTOM_PREFIX_SUPPORT=1
    '-DVORN_ACCOUNT_URL="https://account.vornapp.example"' '-DVORN_INSTALLED_VERSION="1.0.0"'
    -I. -Iportalhub -isystem tools/windows-headers -isystem "$work/include" -isystem "$qt_headers"
)
while read -r definition; do
    flags+=("-D$definition")
done < <(grep -oE '^ +QT_NO_[A-Z_]+' cmake/VornSettings.cmake)
for module in "$qt_headers"/Qt*/; do
    flags+=(-isystem "${module%/}")
done

launcher=()
command -v ccache >/dev/null && launcher=(ccache)

compile() {
    local source=$1
    local own=()
    # The channel library exports what the program imports.
    [[ $source == portalhub/* ]] && own=(-DPORTALHUB_BUILD)
    # The same name each time, so that a compiler cache finds the object again.
    local object="$work/${source//\//_}.o"
    if "${launcher[@]}" "$compiler" "${flags[@]}" "${own[@]}" -o "$object" "$source" >"$object.log" 2>&1; then
        echo "ok      $source"
    else
        echo "FAILED  $source"
        cat "$object.log"
        return 1
    fi
}

mapfile -t sources < <(git ls-files -- "${rooms[@]/%//*.cpp}" | grep -v '/linux/')
[ "${#sources[@]}" -gt 0 ] || fail "no source found"

export work compiler
export -f compile
# Arrays cannot be exported to the parallel shells, a file of settings can.
declare -p flags launcher >"$work/settings"
# shellcheck disable=SC2016 # expanded by the parallel shells
printf '%s\0' "${sources[@]}" |
    xargs -0 -n 1 -P 2 bash -c 'source "$work/settings"; compile "$1"' check-windows
status=$?

[ "$status" -eq 0 ] || fail "some of the ${#sources[@]} sources do not compile as Windows code"
echo "check-windows: all ${#sources[@]} sources compile as Windows code"
