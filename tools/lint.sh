#!/usr/bin/env bash
# ./tools/lint.sh   format, static analysis, QML, shell scripts and the Windows code.
set -euo pipefail
source "$(dirname "$0")/common.sh"
need_packages "${build_packages[@]}" "${run_packages[@]}" "${lint_packages[@]}"
cd "$root"

step "Format of C++"
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror ||
  fail "the format of the files above" "clang-format -i <file>"

step "QML"
git ls-files -z 'qml/*.qml' 'tests/*.qml' 'bench/*.qml' | xargs -0 /usr/lib/qt6/bin/qmllint -I qml ||
  fail "qmllint" "look at the lines above"

step "Shell scripts"
for script in $(git ls-files '*.sh') .ci/run; do
  bash -n "$script" || fail "the syntax of $script" "bash -n $script"
done

step "Windows code"
./tools/check-windows.sh || fail "the code as Windows sees it" "./tools/check-windows.sh"

step "Static analysis"
mkdir -p build
configure_and_build build/dev --preset dev
git ls-files 'app/*.cpp' 'device/*.cpp' 'peripherals/*.cpp' 'persistence/*.cpp' 'launch/*.cpp' \
  'account/*.cpp' 'logging/*.cpp' 'platform/*.cpp' 'portalhub/*.cpp' 'simulator/*.cpp' | grep -v windows/ |
  xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p build/dev --extra-arg=-Wno-unknown-warning-option 2>/dev/null ||
  fail "clang-tidy" "look at the lines above"
