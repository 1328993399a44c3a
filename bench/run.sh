#!/usr/bin/env bash
# ./bench/run.sh   builds the release and prints each figure as a ratio to a baseline measured in the same run.
# ENDURANCE_MINUTES=10 ./bench/run.sh   gives the working year of bench_endurance more than 2 minutes.
set -euo pipefail
source "$(dirname "$0")/../tools/common.sh"
need_packages "${build_packages[@]}" "${run_packages[@]}" "${screen_packages[@]}" strace
cd "$root"
mkdir -p build
configure_and_build build/release --preset release -DVORN_BUILD_TESTS=OFF
bin=$root/build/release/bin
home=$(mktemp -d)
clean_up() {
  stop_screen
  rm -rf "$home"
}
trap clean_up EXIT
start_screen 1920x1200x24

# With an updater running, the first status pass of the program does not have to start one.
XDG_CONFIG_HOME=$home "$bin/PatchPilot" &
screen_pids+=($!)

step "Ratios"
"$bin/bench_logging"
"$bin/bench_message"
"$bin/bench_devicecheck"
"$bin/bench_picture"
"$bin/bench_video"
dbus-run-session -- "$bin/bench_program"

step "Floods"
dbus-run-session -- "$bin/bench_flood"

step "Endurance"
dbus-run-session -- "$bin/bench_endurance" --minutes "${ENDURANCE_MINUTES:-2}"

step "Processes spawned by the status loop"
env HOME="$home" XDG_STATE_HOME="$home" XDG_CONFIG_HOME="$home" XDG_RUNTIME_DIR="$home" TMPDIR="$home" \
  QT_QPA_PLATFORM=offscreen timeout -s TERM 20 \
  strace -f -qq -e trace=execve,fork,vfork -o "$home/trace" "$bin/VORNApp" >/dev/null 2>&1 || true
grep -rqs 'DetectProgramStatusProc\]thread start' "$home/VORNApp" ||
  fail "the program did not come up" "run $bin/VORNApp by hand to see the reason"
spawned=$(($(grep -cE 'execve|v?fork\(' "$home/trace") - 1))
echo "processes spawned by some 20 status passes: $spawned (aim 0)"
[ "$spawned" -eq 0 ]
