#!/usr/bin/env bash
# ./tools/windows/bench.sh   measures under Wine the path of a frame from another process to a sink, and the start
# and the memory of the program against those of a bare window.
#
# Run tools/windows/test.sh first, which configures the build. Needs root.
set -euo pipefail
source "$(dirname "$0")/../common.sh"
source "$root/tools/windows/settings.sh"
print_help_if_asked "$@"
mount_root
step "Building the benchmark"
in_root "$windows_qt/bin/qt-cmake" -S /src -B /build/windows -DVORN_BUILD_BENCH=ON >"$windows_root/build/configure.log" 2>&1 ||
  fail "configuring for Windows" "see $windows_root/build/configure.log"
in_root ninja -C /build/windows bench_video bench_program || fail "building for Windows" "see the first message of the compiler above"
step "Measuring under Wine"
in_root /src/tools/windows/run-wine.sh /build/windows/bin/bench_video.exe

# Wine removes QT_LOGGING_RULES, by which Qt would report its frames.
local_data=$windows_root/build/wine/drive_c/users/root/AppData/Local
mkdir -p "$local_data/QtProject"
printf '[Rules]\nqt.scenegraph.time.renderloop.debug=true\n' >"$local_data/QtProject/qtlogging.ini"
clean_up() {
  rm -r "$local_data/QtProject"
  stop_root_screen
}
trap clean_up EXIT
start_root_screen 1920x1200x24
in_root env DISPLAY="$DISPLAY" LIBGL_ALWAYS_SOFTWARE=1 QMLSCENE_DEVICE= QSG_RHI_BACKEND=opengl \
  /src/tools/windows/run-wine.sh /build/windows/bin/bench_program.exe
