# Chapters of the tour: from the connection to the meeting, the camera, and first-run set-up.
# The content area begins at x 262, the frame of a page at (262, 94).
# shellcheck shell=bash
# shellcheck disable=SC2154 # tour.sh and tour-support.sh share their variables with this file

meeting_chapters() {
  chapter "The display connects"
  display connect
  check "the connection arrived" appears 'newConnectMode:1' "$out/program.log"
  eventually place_window
  display volume 40
  check "its volume arrived" appears 'newVolume:40' "$out/program.log"
  check "its firmware version arrived" appears 'newRemoteVer:4\.1\.0' "$out/program.log"
  check "the program's replies reached it" appears '"type":3' "$out/display.jsonl"
  shot connecting "Waiting for the devices"
  display plug all
  check "the microphone was found" appears 'newVornMicStatus:1' "$out/program.log"
  # The microphone is shown after 6 s, the speaker at 9.5 s, the camera at 13 s, Go at 15 s.
  sleep 8
  shot microphone-up "The devices appear one after another"
  check "Go is there" eventually is_green 520 476
  shot ready "Ready"

  chapter "The meeting"
  mark "$out/display.jsonl"
  click 563 476
  check "the program asked the display to share the screen" appears '"cmd":12,' "$out/display.jsonl"
  check "the program asked the display to switch to BYOD" appears '"cmd":9,' "$out/display.jsonl"
  point 900 40
  shot launcher "The launcher"
  click 377 352
  check "Zoom was started" eventually grep -q started "$data_folder/zoom/started.log"
  check "its window is visible" eventually find_window '^Zoom$'
  shot zoom "The meeting program beside the program" root
  xdotool windowkill "$found"
}

# Prints the framing commands that have reached the display since the last mark.
framing_commands() {
  tail -n "+$((${marks[$out/display.jsonl]} + 1))" "$out/display.jsonl" |
    sed -nE 's/.*"event":"message","id":(13|15),.*"type":2\}.*/\1/p' | xargs
}

camera_chapter() {
  chapter "The camera"
  display camera off
  click 129 277
  point 900 40
  shot camera-closed "No program uses the camera"
  display camera on
  check "the camera's use arrived" appears '"camerastatus": ?1' "$out/program.log"
  sleep 0.5
  shot camera "Pan, tilt and zoom"
  mark "$out/display.jsonl"
  xdotool mousemove --window "$window" 555 323 mousedown 1 sleep 1 mouseup 1
  check "one press and one release of the left arrow arrived" appears_times 2 '"camera-command"' "$out/display.jsonl"
  check "the camera turned left" appears '"event":"camera".*"pan":-' "$out/display.jsonl"
  shot camera-left "After a second to the left"
  mark "$out/display.jsonl"
  xdotool mousemove --window "$window" 563 474 mousedown 1 sleep 0.9 mouseup 1
  shot save-position "A long press offers to save"
  click 563 433
  check "the position was saved" appears '"camera-command"' "$out/display.jsonl"
  mark "$out/display.jsonl"
  click 563 474
  check "the position was recalled" appears '"camera-command"' "$out/display.jsonl"
  mark "$out/display.jsonl"
  mark "$out/program.log"
  display autoframing on
  check "the state of auto framing arrived" appears '"autoframestatus": ?1' "$out/program.log"
  sleep 0.5
  check "the state reported by the display was shown and not sent back" test "$(framing_commands)" = ""
  shot auto-framing "Auto framing"
  click 715 230
  check "the program requested smart framing" appears '"cmd":15,' "$out/display.jsonl"
  shot smart-framing "Smart framing"
  mark "$out/display.jsonl"
  click 473 172
  check "the program ended auto framing" appears '"event":"message".*"autoframestatus":0' "$out/display.jsonl"
  mark "$out/display.jsonl"
  click 653 172
  check "auto framing sends the smart-framing command too" appears '"event":"message".*"cmd":15,' "$out/display.jsonl"
  check "the commands have the right order" test "$(framing_commands)" = "13 15"
}

# Compares two pictures of a window that are taken half a second apart.
window_moves() {
  local first second
  first=$(import -window "$1" rgb:- | md5sum)
  sleep 0.5
  second=$(import -window "$1" rgb:- | md5sum)
  [ "$first" != "$second" ]
}

# patches_are_right <picture of the monitor window> <colour>...
# Compares the colour patches of the display's screen with the colours sent; the tolerance is 3 of 255.
# The patches are in one row, one twentieth of the picture's width apart.
patches_are_right() {
  local picture=$1 n=0 width height pixel want channel
  shift
  read -r width height < <(identify -format '%w %h' "$picture")
  for want in "$@"; do
    pixel=$(convert "$picture" -depth 8 -crop "1x1+$((width * (64 + 5 * n) / 100))+$((height * 395 / 1000))" \
      +repage txt:- | grep -oE '#[0-9A-F]{6}' | head -n 1)
    for channel in 1 3 5; do
      local difference=$((16#${pixel:channel:2} - 16#${want:channel:2}))
      [ "${difference#-}" -le 3 ] || { echo "patch $n is $pixel, not $want" >&2; return 1; }
    done
    n=$((n + 1))
  done
}

# press_next <window> <next step>   presses the button that the display draws.
press_next() {
  local width height
  read -r width height < <(xdotool getwindowgeometry --shell "$1" | sed -n 's/^WIDTH=//p; s/^HEIGHT=//p' | xargs)
  xdotool mousemove --window "$1" $((width * 84 / 100)) $((height * 86 / 100)) sleep 0.1 click 1
  appears "\"step\": ?\"$2\"" "$out/display.jsonl"
}

window_is_gone() { ! xdotool getwindowname "$1" 2>/dev/null; }

first_run_chapter() {
  chapter "First-run set-up"
  display disconnect
  display connect first-run
  check "the mode arrived" appears 'newConnectMode:2' "$out/program.log"
  eventually place_window
  click 129 229
  point 900 40
  shot set-up-detected "A display that needs its first set-up"
  mark "$out/display.jsonl"
  click 563 430
  check "the program requested the set-up" appears '"cmd":22,' "$out/display.jsonl"
  check "the monitor window opened" eventually find_window '^VORN Bar$'
  local monitor=$found step
  eventually is_painted "$monitor"
  shot monitor-waiting "No picture yet" "$monitor"
  sleep 5
  shot monitor-failed "No picture for five seconds" "$monitor"
  display video start
  check "its picture changes" eventually window_moves "$monitor"
  shot monitor "The display's screen" "$monitor"
  check "its colours are right" patches_are_right "$out/monitor.png" "#000000" "#FFFFFF" "#FF0000" "#00FF00" "#0000FF"
  xdotool windowsize --sync "$monitor" 1440 1000
  shot monitor-bars "In a window of another aspect ratio" "$monitor"
  xdotool windowsize --sync "$monitor" 1440 810
  for step in language network room-name finish "done"; do
    check "a press on the drawn button leads to \"$step\"" press_next "$monitor" "$step"
  done
  check "the display is ready" appears 'newConnectMode:1' "$out/program.log"
  shot monitor-complete "The set-up is complete" "$monitor"
  check "the monitor window closes by itself" eventually window_is_gone "$monitor"
  display video stop
}
