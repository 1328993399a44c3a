# Chapters of the tour: start and sign-in.
# shellcheck shell=bash
# shellcheck disable=SC2034,SC2154 # tour.sh and tour-support.sh share their variables with this file

readonly user=ada@example.com password=Engine1843

start_display() {
  chapter "The simulated display and account service"
  mkfifo "$home/commands"
  launch "$bin/VORNSimulator" <"$home/commands" >"$out/display.jsonl" 2>"$out/display.err" &
  display=$!
  pids+=("$display")
  exec {display_input}>"$home/commands"
  # What arrives while Wine starts is lost.
  check "the display listens" appears '"listening"' "$out/display.jsonl"
  display account listen
  check "the account service listens" appears '"account-listening"' "$out/display.jsonl"
  use_account_service "$out/display.jsonl"
  convert -size 200x200 radial-gradient:'#7FD1AE'-'#1F4E8C' -fill white -gravity center \
    -pointsize 90 -annotate 0 A "$home/ada.png"
  convert -size 160x120 plasma:tomato-gold "$home/new picture 100%.png"
  display account add "$user" "$password" firstName=Ada lastName=Byron \
    'company="Analytical Engines"' title=Countess "picture=$(native "$home/ada.png")"
  display devices root "$(native "$devices")"
  printf 'installed=1.0.0.0\nseconds=3\n' >"$config_folder/patchpilot.ini"
  install_zoom
  # Without an updater of this run the program would accept any other on this machine.
  launch "$home/app/PatchPilot" &
  pids+=($!)
}

start_program() {
  chapter "The program starts"
  launch "$home/app/VORNApp" >>"$out/program.log" 2>&1 &
  program=$!
  pids+=("$program")
  check "its window is on the screen" eventually place_window
  check "the program is connected to the channel" appears '"client-connected"' "$out/display.jsonl"
}

account_chapters() {
  chapter "Sign-in"
  shot sign-in "Sign in"
  click 725 150
  shot create-account "Create an account"
  click 600 220
  type_text Grace
  key Tab
  type_text Hopper
  key Tab
  type_text grace@gmail.com
  key Tab
  shot create-account-refused "A private address is refused"
  key shift+Tab ctrl+a
  type_text grace@example.org
  key Tab
  type_text Cobol1959
  key Return
  type_text Cobol1959
  mark "$out/display.jsonl"
  key Return
  check "the account was created" appears '"account-request".*register' "$out/display.jsonl"
  shot verify-account "The message to verify the address is sent"
  key Return

  click 850 311
  shot reset-password "A forgotten password"
  type_text "$user"
  key Return
  check "a new password was requested" appears '"account-request".*forgot' "$out/display.jsonl"
  shot reset-complete "The message to reset the password is sent"
  key Return

  click 600 212
  type_text "$user"
  key Return
  type_text wrong
  mark "$out/program.log"
  key Return
  check "the service refused a wrong password" appears 'response:.*"success": ?false' "$out/program.log"
  shot wrong-password "The message of the service"
  key ctrl+a
  type_text "$password"
  key Return
  check "the right password signs in" appears 'newLogin:(1|true)' "$out/program.log"
  check "the name arrived" appears 'newFirstName:Ada' "$out/program.log"
  shot signed-in "Name and picture"
}
