#!/usr/bin/env bash
# ./tools/tour.sh <folder of the built programs> <folder for the results>
#
# Uses the program as a person would, from sign-in to the upgrade, with a simulated display, account
# service, updater and meeting program. Needs a screen with a window manager. Leaves pictures with an
# index (index.html), the log and the display's messages. Exit code 0 only when every check holds.
set -euo pipefail
here=$(dirname "$0")
source "$here/common.sh"
for part in support account meeting settings states; do
  source "$here/tour-$part.sh"
done
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
upgrade_chapter
states_chapter

step "$checks checks hold. Pictures are in $out/index.html, log and messages beside it"
