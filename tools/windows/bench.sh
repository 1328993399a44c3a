#!/usr/bin/env bash
# ./tools/windows/bench.sh   measures under Wine the path of a frame from another process to a sink.
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
in_root ninja -C /build/windows bench_video || fail "building for Windows" "see the first message of the compiler above"
step "Measuring under Wine"
in_root /src/tools/windows/run-wine.sh /build/windows/bin/bench_video.exe
