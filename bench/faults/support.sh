# Functions of the fault runs: a program with its display in a home folder of its own, checks, and the table.
# Source this file after common.sh and tour-support.sh.
# shellcheck shell=bash
# shellcheck disable=SC2154 # tour-support.sh and run.sh set the variables that are not set here

# begin <name> <title>   makes a home on a small file system and starts screen, display and account service.
begin() {
  name=$1 title=$2 broken=()
  out=$results/$name
  mkdir -p "$out"
  step "$title"
  pids=()
  start_screen 1920x1200x24
  make_home "$bin"
  faults=$home/faults
  head -c 24 /dev/zero >"$faults"
  # State, settings and data of the user lie on a disk of their own, so that it can be filled.
  user=$home/user
  mkdir "$user"
  mount -t tmpfs -o size=16M tmpfs "$user"
  export XDG_STATE_HOME=$user/state XDG_CONFIG_HOME=$user/config XDG_DATA_HOME=$user/data
  mkdir -p "$XDG_STATE_HOME" "$XDG_CONFIG_HOME/VORNApp" "$XDG_DATA_HOME"
  mkfifo "$home/commands"
  : >"$out/program.log"
  "$bin/VORNSimulator" <"$home/commands" >"$out/display.jsonl" 2>"$out/display.err" &
  simulator=$!
  pids+=("$simulator")
  exec {display_input}>"$home/commands"
  display account listen
  display account add "$account" "$password" firstName=Ada lastName=Byron company=Engines title=Countess
  eventually grep -q '"account-listening"' "$out/display.jsonl"
  use_account_service "$out/display.jsonl"
  "$home/app/PatchPilot" &
  pids+=($!)
  # The installed program cannot write beside itself.
  mount --bind "$home/app" "$home/app"
  mount -o remount,bind,ro "$home/app"
}

# launch [<name>=<value>...]   starts the program and waits for its window and for its channel.
launch() {
  mark "$out/program.log"
  mark "$out/display.jsonl"
  (cd "$home/tmp" && exec env "$@" VORN_FAULTS="$faults" "$home/app/VORNApp" >>"$out/program.log" 2>&1) &
  program=$!
  pids+=("$program")
  holds "the program starts" appears '"client-connected"' "$out/display.jsonl"
  if [ -z "${QT_QPA_PLATFORM:-}" ]; then holds "its window is shown" eventually place_window; fi
  display connect
  holds "the display is connected" appears 'newConnectMode:1' "$out/program.log"
}

# holds <what> <command...>   checks; what does not hold is remembered for the row of the table.
holds() {
  local what=$1
  shift
  if "$@"; then
    printf '  [x] %s\n' "$what"
  else
    printf '  [ ] %s\n' "$what"
    broken+=("$what")
  fi
}
fails() { ! "$@"; }

# end <what the user sees> <what the log says> <what is lost>   ends the run and adds its row.
end() {
  local verdict=pass
  [ ${#broken[@]} -eq 0 ] || verdict="FAIL: $(IFS=';' && echo "${broken[*]}")"
  printf '| %s | %s | %s | %s | %s |\n' "$title" "$1" "$2" "$3" "$verdict" >>"$results/table.md"
  kill -KILL "${pids[@]}" 2>/dev/null || true
  stop_screen
  wait 2>/dev/null || true
  exec {display_input}>&-
  cp -r "$XDG_STATE_HOME" "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$out" 2>/dev/null || true
  cp "$home"/tmp/*.dmp "$out" 2>/dev/null || true
  umount "$user"
  umount "$home/app"
  rm -rf "$home"
}

# quits   asks the program to quit and checks that it does so in order.
quits() {
  kill -TERM "$program"
  ends_with_0 "$program"
}
left_no_dump() { [ -z "$(find "$home/tmp" -name '*.dmp')" ]; }
lives() { kill -0 "$program" 2>/dev/null && left_no_dump; }

# answers   whether the window thread answers a second start within ten seconds.
answers() { timeout 10 "$home/app/VORNApp" >>"$out/second.log" 2>&1; }

# takes_volume <0..100>   whether a message of the display arrives.
takes_volume() {
  mark "$out/program.log"
  display volume "$1"
  appears "newVolume:$1" "$out/program.log"
}

# Numbers for the preloaded library: seconds of the time of day, seconds of the monotonic clock, bytes.
set_faults() {
  python3 -c 'import struct, sys; open(sys.argv[1], "r+b").write(struct.pack("=3q", *map(int, sys.argv[2:])))' \
    "$faults" "$@"
}

sign_in() {
  mark "$out/program.log"
  eventually place_window
  click 600 212
  type_text "$account"
  key Return
  type_text "$password"
  key Return
}
signed_in() { appears 'newLogin:(1|true)' "$out/program.log"; }
log_file() { cat "$XDG_STATE_HOME"/VORNApp/*.log 2>/dev/null; }
in_log_file() { log_file | grep -qE -- "$1"; }
registry_has() { grep -q "$1" "$XDG_CONFIG_HOME/VORNApp/registry.ini"; }
