#!/usr/bin/env bash
# tools/tour.sh <folder of the programs> <folder for the results>
# Drives the main job on the screen that DISPLAY names: a simulated display connects and reports, and
# the user changes its volume. Leaves screenshots, the log and the display's messages. Exit code 0 only
# when every check holds.
set -euo pipefail
source "$(dirname "$0")/common.sh"
bin=$1
out=$2
rm -rf "$out"
mkdir -p "$out"

# A home of its own keeps the tour away from the user's files and from a running instance.
home=$(mktemp -d)
export HOME=$home XDG_STATE_HOME=$home/state XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data
export XDG_CACHE_HOME=$home/cache XDG_RUNTIME_DIR=$home/run TMPDIR=$home/tmp
export VORN_PORTALHUB_SOCKET=$home/run/portalhub
mkdir -m 700 "$XDG_RUNTIME_DIR" "$TMPDIR"
pids=()
clean_up() {
  [ ${#pids[@]} -gt 0 ] && kill -KILL "${pids[@]}" 2>/dev/null || true
  cp -r "$XDG_STATE_HOME" "$out/state" 2>/dev/null || true
  rm -rf "$home"
}
trap clean_up EXIT

checks=0
check() { # check <what> <command...>
  local what=$1
  shift
  if ! "$@"; then
    printf '  [ ] %s\n' "$what"
    fail "the tour: $what" "look at $out/program.log and $out/display.jsonl"
  fi
  checks=$((checks + 1))
  printf '  [x] %s\n' "$what"
}
# Until the file holds a line that matches, 30 s at most.
appears() {
  local tries=0
  until grep -qE -- "$1" "$2" 2>/dev/null; do
    sleep 0.05
    tries=$((tries + 1))
    [ $tries -lt 600 ] || return 1
  done
}
# 60 s at most.
ends_with_0() { timeout 60 tail --pid="$1" -s 0.05 -f /dev/null && wait "$1"; }
shot() { import -window root "$out/$1.png"; }

step "A display and the program meet"
"$bin/VORNSimulator" --no-stdin --scenario "$root/simulator/scenarios/first-contact.scenario" \
  >"$out/display.jsonl" 2>"$out/display.err" &
display=$!
"$bin/VORNApp" 2>"$out/program.log" &
program=$!
pids=("$display" "$program")

check "the program met the display" appears '"client-connected"' "$out/display.jsonl"
check "the display's connection arrived" appears 'm_connectMode:0, newConnectMode:1' "$out/program.log"
check "its volume arrived" appears 'direction:1, m_volume:[0-9]+, newVolume:40' "$out/program.log"
check "its source arrived" appears 'm_byodSwitch:0, newByodSwitch:' "$out/program.log"
check "its firmware version arrived" appears 'm_remoteVer:, newRemoteVer:4\.1\.0' "$out/program.log"
check "the program's replies reached the display" appears '"type":3' "$out/display.jsonl"

# A display that connects brings the window forward, which may replace the window system's one.
window_is_placed() {
  local tries=0
  until window=$(xdotool search --onlyvisible --name '^VORNApp$' 2>/dev/null | head -n 1) && [ -n "$window" ] &&
    xdotool windowmove --sync "$window" 150 100 2>/dev/null; do
    sleep 0.1
    tries=$((tries + 1))
    [ $tries -lt 300 ] || return 1
  done
}
check "its window is on the screen" window_is_placed
shot 1-connected

step "The user turns the volume up"
xdotool mousemove --window "$window" 254 488 click 1
check "the program sent the new volume" appears 'send to channel:.*"cmd":1,.*"volume":45' "$out/program.log"
check "the display received it" appears '"cmd":1,.*"volume":45' "$out/display.jsonl"
sleep 0.5
shot 2-volume-changed
check "the display's story came to its end" ends_with_0 "$display"

step "The program quits"
kill -TERM "$program"
check "it ended with exit code 0" ends_with_0 "$program"
pids=()
check "it said good-bye" grep -q 'VORNApp quit!!!' "$out/program.log"

step "$checks checks hold. Screenshots, log and the display's messages are in $out"
