#!/usr/bin/env bash
# ./tools/windows/test.sh [--core] [ctest options]   builds the Windows program and runs its tests under Wine.
#
# Uses a Debian 13 root, which tools/windows/make-root.sh makes when it is missing. VORN_WINDOWS_QT names the
# archive or folder of a Windows Qt; see docs/windows.md. The pages are drawn with OpenGL on a virtual screen.
# With --core only the tests of the rooms without a user interface are built and run, and there is no screen;
# with -N tests are built and not run. Needs root.
set -euo pipefail
source "$(dirname "$0")/../common.sh"
source "$root/tools/windows/settings.sh"

print_help_if_asked "$@"
[ "$(id -u)" -eq 0 ] || fail "the Debian root needs root" "run it again as root or with sudo"

targets=()
if [ "${1:-}" = --core ]; then
  shift
  targets=(core_tests)
  set -- -L '^(logging|platform|launch|persistence|account|portalhub|simulator|device|peripherals)$' "$@"
fi

began=$SECONDS
"$root/tools/windows/make-root.sh" "$windows_root"
mount_root
need_windows_qt

step "Building for Windows"
in_root "$windows_qt/bin/qt-cmake" -G Ninja -S /src -B /build/windows -DCMAKE_BUILD_TYPE=Release \
  -DVORN_BUILD_TESTS=ON -DVORN_WARNINGS_AS_ERRORS=ON \
  -DCMAKE_CROSSCOMPILING_EMULATOR=/src/tools/windows/run-test.sh >"$windows_root/build/configure.log" 2>&1 || {
  tail -30 "$windows_root/build/configure.log" >&2
  fail "configuring for Windows" "see $windows_root/build/configure.log"
}
in_root ninja -C /build/windows "${targets[@]}" || fail "building for Windows" "see the first message of the compiler above"
built=$SECONDS

step "Testing under Wine"
install -d -m 700 "$windows_root/build/run"
if [ ! -d "$windows_root/build/wine" ]; then
  in_root /src/tools/windows/run-wine.sh wineboot -i >/dev/null 2>&1
  # Wine makes windows without a screen only with its driver "null".
  in_root /src/tools/windows/run-wine.sh reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d x11,null /f >/dev/null
  in_root /src/tools/windows/run-wine.sh wineboot -k >/dev/null 2>&1 || true
fi
screen=()
if [ ${#targets[@]} -eq 0 ]; then
  need_packages "${screen_packages[@]}"
  trap stop_root_screen EXIT
  start_root_screen 1920x1200x24
  screen=(env "DISPLAY=$DISPLAY" LIBGL_ALWAYS_SOFTWARE=1)
fi
in_root "${screen[@]}" ctest --test-dir /build/windows --output-on-failure --no-tests=error -j 2 "$@" ||
  fail "tests under Wine" "see the output above; to run one test again: $0 -R <name>"
printf '\nBuilt in %d s, tested in %d s\n' "$((built - began))" "$((SECONDS - built))"
