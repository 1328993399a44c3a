# Chapters of the tour: settings, profile and upgrade. The content area begins at x 262.
# shellcheck shell=bash
# shellcheck disable=SC2034,SC2154 # tour.sh and tour-support.sh share their variables with this file

settings_chapters() {
  chapter "Settings"
  click 129 611
  point 900 40
  shot settings "General"
  click 774 198
  point 900 40
  shot up-to-date "No newer version"
  click 509 129
  mark "$out/program.log"
  click 342 240
  check "Zoom was removed from the launcher" appears 'newSupportLaunchZoom:(0|false)' "$out/program.log"
  click 342 283
  mark "$out/program.log"
  click 342 326
  point 900 40
  shot launcher-apps "The last program cannot be removed"
  check "the last program cannot be unchecked" test "$(count_since_mark 'newSupportLaunchGoogle' "$out/program.log")" = 0
  click 342 240
  check "Zoom was added again" appears 'newSupportLaunchZoom:(1|true)' "$out/program.log"
  click 342 283
  click 722 129
  mark "$out/program.log"
  click 853 193
  check "the BYOD switch was changed" appears 'm_useRemoteDevice:.*checked:' "$out/program.log"
  point 900 40
  shot byod-switch "The BYOD switch"

  chapter "The profile"
  click 120 159
  point 900 300
  shot profile "The profile"
  click 820 194
  shot profile-edit "The profile form"
  click 720 392
  key ctrl+a
  type_text "Lady of Numbers"
  click 364 196
  sleep 0.5
  shot picture "A new picture"
  click 503 332
  sleep 1.5
  shot file-dialog "The file dialog" root
  choose_file "$home/new picture 100%.png"
  sleep 1
  shot picture-chosen "The chosen picture"
  key Escape
  mark "$out/display.jsonl"
  mark "$out/program.log"
  click 768 468
  check "the profile was saved" appears '"account-request".*"endpoint":"profile-update"' "$out/display.jsonl"
  check "the new title is in the reply" appears 'newTitle:Lady of Numbers' "$out/program.log"
  shot profile-changed "The new picture"
}

upgrade_chapter() {
  chapter "Upgrade"
  printf 'installed=1.0.0.0\nseconds=3\noffer=1.1.0.0\n' >"$config_folder/patchpilot.ini"
  check "a newer version was found" appears 'newver:1\.1\.0\.0' "$out/program.log"
  click 129 611
  click 350 129
  sleep 1
  shot new-version "A newer version"
  click 840 198
  sleep 0.3
  shot update-offer "The offer to update"
  click 697 488
  sleep 2
  shot updating "The update in progress"
  check "the update completed and the program ended" ends_with_0 "$program"
  check "it logged that it quits" grep -q 'VORNApp quit!!!' "$out/program.log"

  chapter "The new version"
  display account close
  mark "$out/display.jsonl"
  mark "$out/program.log"
  start_program
  check "the user is still signed in while the service is unreachable" appears 'newFirstName:Ada' "$out/program.log"
  check "the new version runs" appears 'version:1\.1\.0\.0' "$out/program.log"
  click 129 611
  click 774 198
  point 900 40
  shot upgraded "Up to date"
  quit_program
  check "it ended with exit code 0" ends_with_0 "$program"
  quit_display
  check "the display ended with exit code 0" ends_with_0 "$display"
  pids=()
}
