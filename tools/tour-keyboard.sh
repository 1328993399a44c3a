# Chapters of the tour: a lap with the keyboard only, and one on a Wayland compositor.
# shellcheck shell=bash
# shellcheck disable=SC2034,SC2154 # tour.sh and tour-support.sh share their variables with this file

# A display and a program that knows no user. The files of the laps before keep their content.
start_again() {
  mv "$out/display.jsonl" "$out/display-pointer.jsonl"
  mv "$out/program.log" "$out/program-pointer.log"
  marks=()
  rm -f "$home/commands" "$home/app/userdata.db"*
  start_display
  start_program
}

# tab <number>   moves the focus forward, or back by a negative number of controls.
tab() {
  local n step=Tab
  [ "$1" -gt 0 ] || step=shift+Tab
  for ((n = 0; n < ${1#-}; n++)); do key "$step"; done
}

# The compositor's window has no name that can be searched for.
find_compositor() {
  window=$(xdotool search --onlyvisible --class '^Weston' 2>/dev/null | head -n 1)
  [ -n "$window" ]
}

keyboard_chapters() {
  start_again
  chapter "With the keyboard only: the meeting"
  tab 2
  type_text "$user"
  key Return
  type_text "$password"
  key Return
  check "the keys sign in" appears 'newLogin:(1|true)' "$out/program.log"
  display connect
  display plug all
  check "the camera was found" appears 'newVornCamStatus:1' "$out/program.log"
  # Go is shown after 15 s.
  sleep 17
  shot keys-ready "Go has the focus"
  mark "$out/display.jsonl"
  key Return
  check "Return on Go shares the screen" appears '"cmd":12,' "$out/display.jsonl"
  shot keys-launcher "The launcher, with the focus on its first program"
  key Return
  check "Return starts Zoom" eventually find_window '^Zoom$'
  xdotool windowkill "$found" windowactivate --sync "$window"

  chapter "With the keyboard only: camera and settings"
  display camera on
  tab -2
  key Return
  tab 2
  shot keys-camera "The camera page, with the focus on its first tab"
  mark "$out/display.jsonl"
  xdotool keydown Up sleep 1.5 keyup Up
  check "a held arrow is one movement" appears '"event":"camera".*"tilt":[^0]' "$out/display.jsonl"
  sleep 0.3
  check "its repeats do not interrupt it" appears_times 2 '"camera-command"' "$out/display.jsonl"
  tab -1
  key Return
  tab 2
  key Return
  tab 2
  mark "$out/program.log"
  key space
  check "the space bar removes Zoom from the launcher" appears 'newSupportLaunchZoom:(0|false)' "$out/program.log"
  shot keys-settings "The settings, with the focus on Zoom"

  chapter "With the keyboard only: first-run set-up, and closing"
  display disconnect
  display connect first-run
  check "the mode arrived" appears 'newConnectMode:2' "$out/program.log"
  tab -6
  key Return
  tab 3
  shot keys-set-up "Start Setup has the focus"
  key Return
  check "Return opens the monitor window" eventually find_window '^VORN Bar$'
  local monitor=$found
  eventually is_painted "$monitor"
  xdotool windowactivate --sync "$monitor"
  key alt+F4
  check "Alt and F4 close it" eventually window_is_gone "$monitor"
  xdotool windowactivate --sync "$window"
  key alt+F4
  check "Alt and F4 hide the main window" eventually main_window_is_gone
  check "a second start ends" timeout 30 "$home/app/VORNApp"
  check "it has brought the window back" eventually place_window
  kill -TERM "$program"
  check "the program ended with exit code 0" ends_with_0 "$program"
}

# The compositor follows the pointer with a delay.
compositor_click() {
  point "$1" "$2"
  sleep 0.3
  xdotool click 1
  sleep 0.3
}

# The compositor's screen is a window of the X server, and has the size of the main window.
wayland_chapter() {
  chapter "On a Wayland compositor"
  printf '[shell]\nlocking=false\npanel-position=none\n' >"$home/weston.ini"
  weston --config="$home/weston.ini" --backend=x11-backend.so --use-pixman --width=968 --height=666 \
    --socket=tour >"$out/weston.log" 2>&1 &
  local compositor=$!
  pids+=("$compositor")
  check "the compositor has a screen" eventually find_compositor
  mark "$out/program.log"
  WAYLAND_DISPLAY=tour QT_QPA_PLATFORM=wayland "$home/app/VORNApp" >>"$out/program.log" 2>&1 &
  program=$!
  pids+=("$program")
  check "the user is still signed in" appears 'newFirstName:Ada' "$out/program.log"
  sleep 2
  shot wayland "The main page under Wayland"
  # The compositor adds up the way of the pointer, and its own pointer starts in this corner.
  point 0 0
  sleep 0.3
  compositor_click 129 611
  compositor_click 509 129
  mark "$out/program.log"
  compositor_click 342 240
  check "a click adds Zoom again" appears 'newSupportLaunchZoom:(1|true)' "$out/program.log"
  shot wayland-settings "The settings under Wayland"
  kill -TERM "$program"
  check "the program ended with exit code 0" ends_with_0 "$program"
  kill "$compositor"
  display quit 0
  check "the display ended with exit code 0" ends_with_0 "$display"
  pids=()
}
