# Faults of the disk, the clock, memory and descriptors. Source this file after support.sh.
# shellcheck shell=bash
# shellcheck disable=SC2154 # support.sh sets the variables

fault_disk_full() {
  begin disk-full "Disk full"
  launch
  dd if=/dev/zero of="$user/filler" bs=4k >/dev/null 2>&1 || true
  holds "messages of the display arrive" takes_volume 55
  sign_in
  holds "a sign-in works" signed_in
  holds "the failed write is in the log" appears 'Query failed:.*full|cannot write|Failed to' "$out/program.log"
  holds "the window answers" answers
  rm "$user/filler"
  sleep 6 # the log is tried again after five seconds
  holds "messages arrive afterwards" takes_volume 56
  holds "the log file goes on" eventually in_log_file newVolume:56
  holds "it quits in order" quits
  launch
  holds "what was stored before is readable" fails in_log_file unusable
  holds "it quits in order again" quits
  end "works as before; has to sign in again at the next start" \
    "on standard error: \`Query failed\`, \`Cannot write the log file\`; the file goes on when there is space" \
    "the sign-in made meanwhile, and the log lines"
}

fault_read_only() {
  begin read-only "Folders read-only"
  # A mount of its own: the first one is busy while another program writes there.
  mount --bind "$user" "$user"
  mount -o remount,bind,ro "$user"
  launch
  holds "the log says so" grep -q 'Cannot write the log file' "$out/program.log"
  holds "the database is reported" grep -q 'Failed to open database' "$out/program.log"
  sign_in
  holds "a sign-in works" signed_in
  holds "messages of the display arrive" takes_volume 55
  holds "the window answers" answers
  holds "it quits in order" quits
  umount "$user"
  end "works; has to sign in at each start" "on standard error: \`Failed to open database\`, \`Cannot write the log file\`" \
    "what could not be written"
}

fault_clock() {
  begin clock "Clock set forth a day, then back two"
  launch LD_PRELOAD="$shim"
  local shift
  for shift in 86400 -86400; do
    set_faults "$shift" 0 0
    mark "$out/display.jsonl"
    holds "messages arrive ($shift s)" takes_volume $((shift > 0 ? 55 : 56))
    holds "the status loop goes on ($shift s)" appears '"cmd":11,' "$out/display.jsonl"
    holds "the window answers ($shift s)" answers
  done
  sign_in
  holds "a sign-in works" signed_in
  sleep 1
  holds "it quits in order" quits
  set_faults 0 0 0
  launch LD_PRELOAD="$shim"
  holds "the sign-in is restored" appears 'newEmail:ada' "$out/program.log"
  holds "it quits in order again" quits
  end "nothing" "lines with the new time" "nothing"
}

fault_suspend() {
  begin suspend "Suspended for an hour"
  launch LD_PRELOAD="$shim"
  kill -STOP "$program"
  set_faults 3600 3600 0
  mark "$out/display.jsonl"
  kill -CONT "$program"
  holds "messages of the display arrive" takes_volume 55
  holds "the window answers" answers
  sleep 3
  local asked
  asked=$(count_since_mark '"event":"message".*"cmd":11,' "$out/display.jsonl")
  holds "missed passes of the status loop are not made up for ($asked)" test "$asked" -le 12
  sign_in
  holds "a sign-in works" signed_in
  holds "it quits in order" quits
  end "the program as it was" "nothing of its own" "nothing"
}

fault_stop() {
  begin stop "SIGSTOP for five seconds, then SIGCONT"
  launch
  kill -STOP "$program"
  answers &
  local second=$! volume
  for volume in 11 22 33 44; do display volume "$volume"; done
  sleep 5
  mark "$out/program.log"
  kill -CONT "$program"
  holds "the last message arrives" appears newVolume:44 "$out/program.log"
  holds "a second start made meanwhile shows the window" wait "$second"
  holds "the window answers" answers
  holds "it quits in order" quits
  end "a window that stands still, then the newest state" "the messages with their late time" "nothing"
}

fault_descriptors() {
  begin descriptors "No file descriptors left"
  launch
  local free=3 # the lowest descriptor that is free is the next one to be used
  while [ -e "/proc/$program/fd/$free" ]; do free=$((free + 1)); done
  prlimit --pid="$program" --nofile="$free:"
  holds "messages of the display arrive" takes_volume 55
  display drop-client
  sleep 2
  holds "it lives" lives
  prlimit --pid="$program" --nofile=1024:
  holds "messages arrive afterwards" takes_volume 56
  holds "the window answers afterwards" answers
  sign_in
  holds "a sign-in works afterwards" signed_in
  holds "it quits in order" quits
  end "no display until there are descriptors again" "nothing of its own" "nothing"
}

fault_memory() {
  begin memory "No memory for a frame"
  launch LD_PRELOAD="$shim"
  display disconnect
  sign_in
  signed_in
  display connect first-run
  appears 'newConnectMode:2' "$out/program.log"
  eventually place_window
  click 129 229
  sleep 1
  click 563 430
  holds "the monitor window opens" eventually find_window '^VORN Bar$'
  local monitor=${found:-}
  display video size 3840 2160
  set_faults 0 0 8000000
  display video start
  sleep 4
  holds "it lives" lives
  holds "the log says so" grep -q 'no memory' "$out/program.log"
  holds "messages of the display arrive" takes_volume 55
  set_faults 0 0 0
  holds "the picture comes afterwards" eventually window_moves "$monitor"
  holds "it quits in order" quits
  end "the last picture, or none, until there is memory" "\`no memory for a frame\`" "the frames meanwhile"
}

fault_shared_memory() {
  begin shared-memory "/dev/shm full"
  launch
  dd if=/dev/zero of=/dev/shm/filler bs=1M >/dev/null 2>&1 || true
  display video start
  sleep 1
  holds "the simulated display lives" kill -0 "$simulator"
  holds "messages of the display arrive" takes_volume 55
  holds "the window answers" answers
  rm /dev/shm/filler
  display video stop
  display video start
  holds "the display's video starts afterwards" appears '"event":"video"' "$out/display.jsonl"
  holds "it quits in order" quits
  end "no picture in the monitor window until there is space" "\`OpenFileMappingA\` or \`MapViewOfFile\` failed" "nothing"
}
