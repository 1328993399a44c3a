#!/usr/bin/env bash
# ./bench/races/run.sh [--results <folder>] [<count>] [<seed>]
#
# Starts the program, built with the thread sanitizer, 500 times by default, under traffic of all kinds:
# messages and frames of the display, datagrams, account replies, pointer and keys. Quits it each time at a
# random moment between its first line in the log and some seconds after its window is there. Exit code 0
# means that each run ended in time with 0 and without a report of the sanitizer.
#
# Runs in namespaces of its own, so that several can run side by side.
# shellcheck disable=SC2034,SC2154 # shares its variables with tour-support.sh
set -uo pipefail
here=$(realpath "$(dirname "$0")")
source "$here/../../tools/common.sh"
if [ -z "${VORN_RACE_SANDBOX:-}" ]; then
  need_packages "${build_packages[@]}" "${run_packages[@]}" "${screen_packages[@]}" util-linux
  configure_and_build build/tsan --preset tsan -- VORNApp VORNSimulator PatchPilot zoom || exit 1
  as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(--map-root-user)
  # shellcheck disable=SC2016 # the inner shell expands them
  exec env VORN_RACE_SANDBOX=1 unshare "${as_root[@]}" --net --ipc --pid --fork --kill-child --mount \
    --mount-proc bash -c 'dbus-run-session -- "$0" "$@"; exit' "$here/run.sh" "$@"
fi

out=$root/build/races
if [ "${1:-}" = --results ]; then
  out=$(realpath "$2")
  shift 2
fi
count=${1:-500}
RANDOM=${2:-1}
rm -rf "$out"
mkdir -p "$out"
mount -t tmpfs tmpfs /tmp
mount -t tmpfs tmpfs /dev/shm
mkdir -m 1777 /tmp/.X11-unix
ip link set lo up
source "$root/tools/tour-support.sh"
source "$root/tools/tour-linux.sh"
bin=$root/build/tsan/bin pids=()
readonly account=ada@example.com password=Engine1843 patience=40
export TSAN_OPTIONS="ignore_noninstrumented_modules=1:second_deadlock_stack=1:die_after_fork=0:suppressions=$root/cmake/tsan.supp"

start_screen 1920x1200x24
make_home "$bin"
mkfifo "$home/commands"
"$bin/VORNSimulator" <"$home/commands" >"$out/display.jsonl" 2>"$out/display.err" &
exec {display_input}>"$home/commands"
display devices root "$VORN_SYSFS_ROOT"
display account listen
display account add "$account" "$password" firstName=Ada lastName=Byron company=Engines title=Countess
eventually grep -q '"account-listening"' "$out/display.jsonl"
use_account_service "$out/display.jsonl"
"$home/app/PatchPilot" >/dev/null 2>&1 &
display video size 640 360
display video start

# traffic   what the outside sends until it is killed.
traffic() {
  local n=0
  while :; do
    n=$((n + 1))
    display volume $((n % 101))
    display source "$([ $((n % 2)) -eq 0 ] && echo byod || echo available)"
    case $((n % 64)) in
    1) display connect first-run ;;
    20 | 40) display video size $((320 + n % 7 * 160)) $((240 + n % 5 * 120)) ;;
    25) display malformed wrong-types 3 ;;
    30) display plug all ;;
    45) display unplug all ;;
    50) display connect ;;
    60) display drop-client ;;
    esac
    printf 'datagram %s' "$n" >/dev/udp/127.0.0.1/49175
    sleep 0.05
  done 2>/dev/null
}

# is_shown   finds and moves the window. Takes no picture of it, as place_window does: a picture that is
# being taken when the window goes can keep the X server grabbed.
is_shown() { find_window '^VORNApp$' && window=$found && timeout 20 xdotool windowmove "$window" 150 100; }

# use_window   what the user does: signs in once, opens the monitor, moves the pointer there.
use_window() {
  eventually is_shown || return
  if ! grep -qs 'newEmail:ada' "$log"; then
    click 600 212
    type_text "$account"
    key Return
    type_text "$password"
    key Return
  fi
  while :; do
    click 129 229
    sleep 0.3
    click 563 430
    find_window '^VORN Bar$' && xdotool mousemove --window "$found" 200 150 mousedown 1 \
      mousemove_relative 50 20 mousemove_relative 40 10 mouseup 1
    click 129 277
    click 563 320
    sleep 0.3
  done
} 2>/dev/null

# run_once   one start and quit; names what went wrong.
run_once() {
  local status=0 started
  (cd "$home/tmp" && exec "$home/app/VORNApp" >"$log" 2>&1) &
  local program=$!
  traffic &
  local sender=$!
  use_window &
  local person=$!
  eventually grep -q 'main\]filepath' "$log"
  # Every third one within the start, the others once there is something to end.
  [ $((RANDOM % 3)) -eq 0 ] || eventually is_shown
  sleep "$((RANDOM % 8)).$((RANDOM % 10))"
  started=$SECONDS
  kill -TERM "$program"
  timeout "$patience" tail --pid="$program" -s 0.05 -f /dev/null || kill -ABRT "$program"
  wait "$program" || status=$?
  kill -KILL "$person" "$sender" 2>/dev/null
  wait "$person" "$sender" 2>/dev/null
  longest=$((SECONDS - started > longest ? SECONDS - started : longest))
  grep -q 'WARNING: ThreadSanitizer' "$log" && echo "report of the sanitizer"
  [ "$status" -eq 0 ] || echo "exit code $status"
}

failures=0 longest=0 monitors=0
step "$count runs"
for ((run = 1; run <= count; ++run)); do
  log=$out/run-$run.log
  run_once >"$out/verdict"
  grep -q 'RecvSharedMemoryProc\]connect' "$log" && monitors=$((monitors + 1))
  if [ -s "$out/verdict" ]; then
    failures=$((failures + 1))
    printf 'run %s: %s (%s)\n' "$run" "$(paste -sd, "$out/verdict")" "$log"
  else
    rm -f "$log"
  fi
  printf '%s\n' "$run runs, $failures bad, $monitors with frames, longest end $longest s" >"$out/progress"
done
step "$(cat "$out/progress")"
stop_screen
[ "$failures" -eq 0 ] || fail "$failures of $count runs" "see $out"
