#!/usr/bin/env bash
# ./tools/tour.sh <folder of the built programs> <folder for the results>
#
# Operates the program with pointer and keyboard, from sign-in to the upgrade, then with the keyboard only
# and on a Wayland compositor, with a simulated display, account service, updater and meeting program. Needs
# a screen with a window manager. Leaves pictures with an index (index.html), the log and the messages of
# the display. Exit code 0 means that every check passed. For the program on Windows there is
# tools/windows/tour.sh.
set -euo pipefail
here=$(dirname "$0")
source "$here/common.sh"
source "$here/tour-support.sh"
source "$here/tour-account.sh"
source "$here/tour-meeting.sh"
source "$here/tour-settings.sh"
source "$here/tour-states.sh"
source "$here/tour-keyboard.sh"
# The functions that depend on the system on which the program runs.
# shellcheck source=tools/tour-linux.sh
source "$here/${VORN_TOUR_SYSTEM:-tour-linux.sh}"
bin=$(realpath "$1")
out=$2
rm -rf "$out"
mkdir -p "$out"
out=$(realpath "$out")
: >"$out/index.body"
pids=()
make_home "$bin"
trap clean_up EXIT

start_display
start_program
account_chapters
meeting_chapters
camera_chapter
settings_chapters
first_run_chapter
system_chapters
upgrade_chapter
states_chapter
last_chapters

step "$checks checks passed. See $out/index.html; log and messages are beside it"
