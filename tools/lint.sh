#!/usr/bin/env bash
# ./tools/lint.sh [--fast]   checks format, scripts, licences, rooms, interfaces, translations, QML and C++.
#
# The fast checks come first. With --fast, the checks that compile are left out.
set -euo pipefail
source "$(dirname "$0")/common.sh"
print_help_if_asked "$@"
case "${1:-}" in
--fast | "") ;;
*) fail "unknown option '$1'" "./tools/lint.sh --help" ;;
esac
need_packages "${build_packages[@]}" "${run_packages[@]}" "${lint_packages[@]}"
cd "$root"
mkdir -p build

step "Format of C++"
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror ||
  fail "the format of the files above" "clang-format -i <file>"

step "Shell scripts"
git ls-files -z '*.sh' .ci/run | xargs -0 shellcheck || fail "shellcheck" "see the lines above"

step "Licences"
reuse lint >build/reuse.log 2>&1 || {
  cat build/reuse.log >&2
  fail "reuse lint" "see the lines above"
}

step "Rooms"
./tools/check-rooms.py || fail "the rooms" "correct the include, or the targets in the room's CMakeLists.txt"

step "Interfaces"
./tools/check-interfaces.py || fail "the description of the interfaces" "correct docs/interfaces.md"

step "Translations"
./tools/check-translations.py || fail "the translations" "./tools/update-translations.sh, then translate: docs/translating.md"

step "QML"
# The effects for the Windows Qt need Qt 6.5.
git ls-files -z '*.qml' ':!:tools/windows/effects/' | xargs -0 /usr/lib/qt6/bin/qmllint -I qml || fail "qmllint" "see the lines above"
[ "${1:-}" = --fast ] && exit

step "Windows code"
./tools/check-windows.sh || fail "compiling as Windows code" "see the lines above"

step "Static analysis"
configure_and_build build/dev --preset dev
git ls-files -z '*.cpp' ':!:*/windows/*' ':!:tests/' ':!:bench/' ':!:fuzz/' ':!:tools/' |
  xargs -0 -P "$(nproc)" -n 4 clang-tidy --quiet -p build/dev --extra-arg=-Wno-unknown-warning-option 2>/dev/null ||
  fail "clang-tidy" "see the lines above"
