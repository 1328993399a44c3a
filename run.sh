#!/usr/bin/env bash
# ./run.sh [--headless]   installs missing packages, builds, and shows the program with a simulated display.
#
# On a screen the program starts and a simulated display connects. Type commands for the display into this
# terminal; "help" lists them. Without a screen, or with --headless, the script uses a virtual screen, goes
# through the program from sign-in to the upgrade, and leaves pictures in build/tour. Exit code 0 means
# that every step succeeded.
set -euo pipefail
source "$(dirname "$0")/tools/common.sh"

print_help_if_asked "$@"
headless=false
case "${1:-}" in
--headless) headless=true ;;
"") ;;
*) fail "unknown option '$1'" "./run.sh --help" ;;
esac
[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || headless=true

packages=("${build_packages[@]}" "${run_packages[@]}")
$headless && packages+=("${screen_packages[@]}")
need_packages "${packages[@]}"
cd "$root"
mkdir -p build
bin="$root/build/run/bin"
targets=(VORNApp VORNSimulator PatchPilot UpdateInstaller SimulatedZoom)
# vorn-item-tree draws states of pages that take minutes to reach in the program. It uses the test rig.
with_tests=OFF
$headless && with_tests=ON && targets+=(vorn-item-tree)
configure_and_build build/run -DCMAKE_BUILD_TYPE=Release -DVORN_BUILD_TESTS=$with_tests -- "${targets[@]}"

if $headless; then
  trap stop_screen EXIT
  start_screen 1920x1200x24
  "$root/tools/tour.sh" "$bin" "$root/build/tour"
  exit
fi

source "$root/tools/tour-support.sh"
source "$root/tools/tour-linux.sh"
# The simulated updater, which the program starts, ends when its folder is removed.
clean_up() {
  [ -s "$home/program.pid" ] && kill "$(cat "$home/program.pid")" 2>/dev/null
  rm -rf "$home"
}
start_program() {
  eventually grep -q '"account-listening"' "$home/display.jsonl" || return
  use_account_service "$home/display.jsonl"
  "$home/app/VORNApp" 2>"$root/build/run/program.log" &
  echo $! >"$home/program.pid"
  wait $! || { printf '\nThe program has ended. Its last lines:\n'; tail -n 5 "$root/build/run/program.log"; } >&2
}

make_home "$bin"
trap clean_up EXIT
"$home/app/apps/zoom" --install >/dev/null
step "Starting the program; its log is build/run/program.log"
printf 'Sign in as ada@acme.example with the password Engine1843.\n'
step "Type commands for the simulated display here; \"quit\" ends the display and the program"
touch "$home/display.jsonl"
start_program &
"$bin/VORNSimulator" --sysfs "$VORN_SYSFS_ROOT" --scenario simulator/scenarios/desk.scenario |
  tee "$home/display.jsonl"
