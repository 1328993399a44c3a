#!/usr/bin/env bash
# ./tools/check-windows.sh   compiles the Windows sources, and those that both systems share, as Windows code.
#
# Nothing is linked. The headers of the installed Qt are used in place of those of a Qt for Windows.
set -u
cd "$(dirname "$0")/.." || exit 1

compiler=x86_64-w64-mingw32-g++-posix
rooms=(account app device framewriter launch logging peripherals persistence platform portalhub qml simulator threads)

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

# /usr/include also holds the headers of this system's C library. A folder with links to glog and gflags
# keeps them out of the search path.
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
    # The channel library exports the functions that the program imports.
    [[ $source == portalhub/* ]] && own=(-DPORTALHUB_BUILD)
    # A fixed name lets ccache find the object again.
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
# Arrays cannot be exported to the parallel shells; these read them from a file.
declare -p flags launcher >"$work/settings"
# shellcheck disable=SC2016 # the parallel shells expand the variables
printf '%s\0' "${sources[@]}" |
    xargs -0 -n 1 -P 2 bash -c 'source "$work/settings"; compile "$1"' check-windows
status=$?

[ "$status" -eq 0 ] || fail "some of the ${#sources[@]} sources do not compile as Windows code"
echo "check-windows: all ${#sources[@]} sources compile as Windows code"
