#!/usr/bin/env bash
# ./bench/powercut/run.sh [cuts] [seed] [changes]
#
# Records the file changes of a history of account changes and cuts the power at random moments of it, 300
# by default. Prints how often which state was found; exit code 0 means that none was bad. What a bad one
# looked like stays in the folder that the line names.
set -euo pipefail
source "$(dirname "$0")/../../tools/common.sh"
cuts=${1:-300} seed=${2:-1} changes=${3:-120}
need_packages "${build_packages[@]}" "${run_packages[@]}" python3
cd "$root"
configure_and_build build/dev --preset dev -DVORN_BUILD_BENCH=ON -- \
  powercut_recorder powercut_stream powercut_check
bin=$root/build/dev/bin

# Memory rather than a disk: each check opens and syncs a database.
work=$(mktemp -d -p "$([ -w /dev/shm ] && echo /dev/shm || echo /tmp)")
disk=$work/disk.live
mkdir -p "$disk"/settings "$disk"/config/VORNApp "$disk"/log/old
cat >"$disk/settings/config.ini" <<'INI'
; A comment that stays.
[K4V]
lowest_ver=1.1.1
[VORNApp]
use_remote_device_interval=1
[Server]
url=https://kept.example
INI
printf '[HKEY_CURRENT_USER]\nSystem\\CurrentControlSet\\Control\\VORNApp\\version=1.2.3.4\n' \
  >"$disk/config/VORNApp/registry.ini"
cp -a "$disk" "$work/disk"

step "Recording $changes changes"
POWERCUT_ROOT=$disk POWERCUT_RECORD=$work/record LD_PRELOAD=$bin/libpowercut_recorder.so \
  "$bin/powercut_stream" "$disk" "$seed" "$changes" 2>"$work/stream.log" ||
  fail "the stream of changes" "see $work/stream.log"

step "Cutting the power $cuts times"
mkdir "$work/cuts"
bench/powercut/replay.py "$work/record" "$work/disk" "$work/cuts" "$bin/powercut_check" \
  "$seed" "$changes" "$cuts" || fail "a power cut left a bad state" "see $work"
rm -rf "$work"
