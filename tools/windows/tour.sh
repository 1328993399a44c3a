#!/usr/bin/env bash
# ./tools/windows/tour.sh [folder of pictures of Linux]
#
# Builds the Windows program and takes the tour (tools/tour.sh) under Wine, on a virtual screen with OpenGL
# through Mesa. Pictures, log and messages are left in the folder build/tour of the Windows root. Where the
# folder of a tour on Linux is there (build/tour unless given), build/tours/index.html lays the pictures of both
# side by side. Needs root, and the root that tools/windows/test.sh makes.
set -euo pipefail
source "$(dirname "$0")/../common.sh"
source "$root/tools/windows/settings.sh"
print_help_if_asked "$@"
need_packages "${screen_packages[@]}"
mount_root

step "Building for Windows"
in_root "$windows_qt/bin/qt-cmake" -G Ninja -S /src -B /build/windows -DCMAKE_BUILD_TYPE=Release \
  -DVORN_BUILD_TESTS=ON -DVORN_WARNINGS_AS_ERRORS=ON >"$windows_root/build/configure.log" 2>&1 ||
  fail "configuring for Windows" "see $windows_root/build/configure.log"
in_root ninja -C /build/windows VORNApp VORNSimulator PatchPilot UpdateInstaller SimulatedZoom vorn-item-tree ||
  fail "building for Windows" "see the first message of the compiler above"

trap stop_root_screen EXIT
start_root_screen 1920x1200x24
install -d -m 700 "$windows_root/build/run"
VORN_TOUR_SYSTEM=windows/tour-system.sh "$root/tools/tour.sh" "$windows_root/build/windows/bin" \
  "$windows_root/build/tour"
linux_tour=${1:-$root/build/tour}
[ ! -f "$linux_tour/index.html" ] ||
  "$root/tools/windows/compare-tours.sh" "$windows_root/build/tour" "$linux_tour" "$windows_root/build/tours"
