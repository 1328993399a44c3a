# Chapter of the tour: states that take minutes to reach, and pages that no entry opens. vorn-item-tree
# draws them.
# shellcheck shell=bash
# shellcheck disable=SC2154 # tour.sh shares its variables with this file
# shellcheck disable=SC2016 # the back quotes are JavaScript

# state <picture> <caption> <page> <size> <script>...
# Draws a page in a window of its own after the scripts have run in its scope.
state() {
  local picture=$1 caption=$2 page=$3 size=$4 scripts=()
  shift 4
  for script in "$@"; do scripts+=(--run "$script"); done
  check "$caption" run_tool "$bin/vorn-item-tree" "$page" --size "$size" --quiet --settle 2500 \
    --png "$(native "$out/$picture.png")" "${scripts[@]}" 2>>"$out/states.log"
  show "$picture" "$caption"
}

states_chapter() {
  local connected='rig.report(0, `{"cmd":0,"type":2,"isReady":1}`)'
  local at_once='staging.firstShowDelay = 0; staging.deviceShowInterval = 0'
  local versions='rig.setInstalledVersion("version", "1.0.0.0"); rig.setInstalledVersion("newver", "1.1.0.0")'

  # A JavaScript function that finds the first item of a name below another item.
  local find='(function find(item, name) { if (item.objectName === name) return item;
    for (let i = 0; i < item.children.length; ++i) { const found = find(item.children[i], name); if (found) return found; }
    return null; })'
  local address_text="$find(page, 'email').text" password_text="$find(page, 'password').text"

  chapter "Refused input"
  state sign-in-format "No address" LoginPage 968x666 "$address_text = 'ada'; $password_text = 'Engine1843'; signIn()"
  state sign-in-empty "No password, shown as plain text" LoginPage 968x666 \
    "$address_text = 'ada@example.com'; $find(page, 'password').showPassword = true; signIn()"
  state service-away "The service cannot be reached" LoginPage 968x666 \
    "rig.stopService(); $address_text = 'ada@example.com'; $password_text = 'Engine1843'; signIn()"
  state passwords-differ "Two different passwords" LoginPage 968x666 'currentPage = page_id_create_account' \
    "for (const [name, text] of [['firstName', 'Ada'], ['lastName', 'Byron'], ['email', 'ada@example.org'], ['password', 'Engine1843'], ['confirmPassword', 'Engine1844']]) $find(createAccountForm, name).text = text; createAccount()"
  state reset-empty "No address for the reset" LoginPage 968x666 'currentPage = page_id_reset_password' 'resetPassword()'
  state profile-refused "The session has expired" Personal 706x666 \
    'rig.addAccount({ email: "ada@example.com", password: "Engine1843", firstName: "Ada", lastName: "Byron", company: "Analytical Engines", title: "Countess" })' \
    'network.loginSuccess.connect(data => { deviceControl.loginSuccess(data); currentPage = page_id_personal_edit; rig.endSessions("ada@example.com"); save(); })' \
    'network.login("ada@example.com", "Engine1843")'

  chapter "States that take minutes, and pages that no entry opens"
  state plug-in "No display is connected" Meetings 706x666
  state speaker-up "Microphone and speaker are detected" Meetings 706x666 \
    "$at_once; rig.plug(true, true, false); $connected"
  state time-out "The devices were not detected in time" Meetings 706x666 "staging.connectionTimeout = 0; $connected"
  state all-up "All three devices are detected" Meetings 706x666 \
    "$at_once; staging.tickInterval = 50; staging.completeInterval = 60000; rig.plug(true, true, true); $connected"
  state launcher-one "One program in the launcher" Meetings 706x666 \
    'deviceControl.supportLaunchZoom = false; deviceControl.supportLaunchGoogle = false; currentPage = page_id_launch_meeting'
  state setting-up "The set-up in progress" Meetings 706x666 'currentPage = page_id_oobe_setuping'
  state update-failed "An update that timed out" General 706x666 \
    "$versions; progress.timeout = 0; startUpdating()"
  state update-complete "The new version is installed" General 706x666 \
    "$versions; quitDelay = 60000; startUpdating()" 'rig.setInstalledVersion("version", "1.1.0.0")'
  state profile-incomplete "A field is empty" Personal 706x666 \
    'currentPage = page_id_personal_edit' 'save()'
  state picture-refused "The picture is too large" Personal 706x666 \
    'currentPage = page_id_personal_edit; picturePopup.open()' 'adoptPicture(rig.makePicture("large.png", 2097152))'
  state firmware-warning "The firmware of the display is too old" CheckRemoteVersion 680x342
  state overview-waiting "The overview before the display has answered" MeetingControl 1092x835
  state overview "The overview with BYOD selected" MeetingControl 1092x835 "$connected" \
    'rig.report(1, `{"cmd":1,"seq":1,"type":1,"volume":40}`)' \
    'rig.report(6, `{"cmd":6,"seq":1,"type":1,"byod_status":2,"zoom_status":1,"is_byodui_show":1}`)'
  state overview-share "The overview with the screen shared" MeetingControl 1092x835 "$connected" \
    'rig.report(6, `{"cmd":6,"seq":1,"type":1,"byod_status":1,"zoom_status":2,"is_byodui_show":1}`)'
}
