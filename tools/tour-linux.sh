# What the tour does in another way on each system; this file is for Linux. Source it after tour-support.sh.
# shellcheck shell=bash
# shellcheck disable=SC2034,SC2154 # tour.sh and its chapters share their variables with this file

pace=0.15 pause=0

# make_home <folder of the built programs>
# Makes a temporary home folder. It keeps the programs away from the user's files and from an instance of
# the user's, but lets them use the user's screen.
make_home() {
  home=$(mktemp -d)
  export XAUTHORITY=${XAUTHORITY:-$HOME/.Xauthority}
  case ${WAYLAND_DISPLAY:-/} in
  /*) ;;
  *) export WAYLAND_DISPLAY=${XDG_RUNTIME_DIR:-}/$WAYLAND_DISPLAY ;;
  esac
  export HOME=$home XDG_STATE_HOME=$home/state XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data
  export XDG_CACHE_HOME=$home/cache XDG_RUNTIME_DIR=$home/run TMPDIR=$home/tmp
  export VORN_PORTALHUB_SOCKET=$home/run/portalhub VORN_SYSFS_ROOT=$home/sys
  config_folder=$XDG_CONFIG_HOME/VORNApp data_folder=$XDG_DATA_HOME log_folder=$XDG_STATE_HOME
  devices=$VORN_SYSFS_ROOT
  mkdir -m 700 "$XDG_RUNTIME_DIR" "$TMPDIR"
  mkdir -p "$home/app" "$config_folder" "$devices"
  # The program keeps its settings in its own folder.
  cp -a "$1"/{VORNApp,PatchPilot,config.json} "$1"/apps "$1"/libPortalHub.so* "$home/app"
}

remove_home() { rm -rf "$home"; }

# Prints a path as the programs expect it.
native() { printf '%s\n' "$1"; }

# launch <path of a program> [argument]...   replaces this shell, so call it in the background.
launch() { exec "$@"; }

# run_tool <path of a program> [argument]...   runs a program to its end.
run_tool() { timeout 60 "$@"; }

# Makes the simulated meeting program the one that a launch of Zoom finds.
install_zoom() { "$home/app/apps/zoom" --install >/dev/null; }

# choose_file <path>   types it into the open file dialog.
choose_file() {
  key ctrl+l
  key ctrl+a
  type_text "$1"
  key Return
}

quit_program() { kill -TERM "$program"; }

quit_display() { display quit 0; }

# Chapters that only this system has: before the upgrade, and at the end.
system_chapters() { :; }
last_chapters() {
  keyboard_chapters
  wayland_chapter
}
