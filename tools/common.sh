# Functions and settings that run.sh, test.sh and the tools share. Source this file.
# shellcheck shell=bash
# shellcheck disable=SC2034 # the lists of packages are used by the scripts that source this file

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# ccache reuses the objects of another checkout of the same sources.
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1
# Qt's code generators write in hash order. A fixed seed makes their output reproducible.
export QT_HASH_SEED=0

build_packages=(
  cmake ninja-build g++ ccache pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-declarative-dev qt6-declarative-dev-tools qt6-multimedia-dev
  qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
  libgl-dev libxcb1-dev libgoogle-glog-dev fonts-lato
)
run_packages=(
  libqt6sql6-sqlite libgl1-mesa-dri
  qml6-module-qtqml qml6-module-qtqml-workerscript
  qml6-module-qtquick qml6-module-qtquick-window qml6-module-qtquick-controls
  qml6-module-qtquick-templates qml6-module-qtquick-layouts qml6-module-qtquick-dialogs
  qml6-module-qt-labs-folderlistmodel
  qml6-module-qtmultimedia qml6-module-qt5compat-graphicaleffects
)
# A virtual screen. Minimising, stay-on-top and tray clicks need a window manager and a tray.
screen_packages=(xvfb xauth xdotool x11-utils x11-xserver-utils imagemagick openbox trayer weston qt6-wayland dbus)
test_packages=(qml6-module-qttest sqlite3)
lint_packages=(clang-format clang-tidy g++-mingw-w64-x86-64-posix git python3 reuse shellcheck)

step() { printf '\n==> %s\n' "$*"; }

# fail <what failed> <how to fix it>
fail() {
  printf '\nFAILED: %s\n' "$1" >&2
  [ -n "${2:-}" ] && printf 'To fix it: %s\n' "$2" >&2
  exit 1
}

# print_help_if_asked "$@"   prints the comment at the top of the running script for -h and --help, and ends it.
print_help_if_asked() {
  [[ ${1:-} =~ ^(-h|--help)$ ]] || return 0
  sed -n '2,${/^#/!q; s/^# \{0,1\}//p}' "$0"
  exit 0
}

# need_packages <package>...   installs those that are missing.
need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  step "Installing ${#missing[@]} packages: ${missing[*]}"
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "installing packages needs root" \
      "run this script as root, or install sudo, or install these packages by hand: ${missing[*]}"
    as_root=(sudo)
  fi
  local log
  log=$(mktemp)
  if ! { "${as_root[@]}" apt-get update -qq && "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y -qq --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
    tail -20 "$log" >&2
    fail "the packages could not be installed" \
      "see the lines above; usual causes are the network and the package sources"
  fi
  rm -f "$log"
}

# Prints the address of the package source of this machine.
package_source() {
  local address
  address=$(awk '/^URIs:/ {print $2; exit}' /etc/apt/sources.list.d/*.sources 2>/dev/null || true)
  [ -n "$address" ] || address=$(awk '$1 == "deb" {for (i = 2; i <= NF; i++) if ($i ~ /^http/) {print $i; exit}}' \
    /etc/apt/sources.list 2>/dev/null || true)
  [ -n "$address" ] || fail "the package source of this machine is not known" "see /etc/apt"
  printf '%s\n' "$address"
}

# configure_and_build <folder> <cmake argument>... [-- <ninja target>...]
# The folder is relative to the checkout unless it is absolute.
configure_and_build() {
  local folder=$1 arguments=() targets=()
  shift
  while [ $# -gt 0 ] && [ "$1" != -- ]; do arguments+=("$1"); shift; done
  [ $# -gt 0 ] && shift && targets=("$@")
  [[ $folder == /* ]] || mkdir -p "$root/build"
  step "Configuring $folder"
  cd "$root" || return
  cmake -S . -B "$folder" -G Ninja "${arguments[@]}" >"$folder.configure.log" 2>&1 || {
    tail -30 "$folder.configure.log" >&2
    fail "configuring" "see $folder.configure.log; if the folder is out of date, remove $folder"
  }
  rm -f "$folder.configure.log"
  step "Building $folder"
  ninja -C "$folder" "${targets[@]}" || fail "building $folder" "see the first message of the compiler above"
}

# eventually <command>...   repeats the command until it succeeds; fails after 60 s.
eventually() {
  local deadline=$((SECONDS + 60))
  until "$@" >/dev/null 2>&1; do
    sleep 0.05
    [ $SECONDS -lt $deadline ] || return 1
  done
}

# is_painted <window>   whether the window shows anything but black; "root" is the whole screen.
is_painted() { [ "$(import -window "$1" png:- 2>/dev/null | identify -format '%[fx:mean>0.02]' - 2>/dev/null)" = 1 ]; }

# start_screen [<width>x<height>x<depth>]
# Starts a virtual screen with a window manager and a tray, and sets DISPLAY. The caller has to trap
# EXIT with stop_screen.
start_screen() {
  local number_file
  number_file=$(mktemp)
  Xvfb -displayfd 3 -screen 0 "${1:-1920x1200x24}" -nolisten tcp 3>"$number_file" >/dev/null 2>&1 &
  screen_pids=($!)
  local tries=0
  until [ -s "$number_file" ]; do
    sleep 0.05
    tries=$((tries + 1))
    [ $tries -lt 400 ] || fail "the virtual screen did not start" "run 'Xvfb :99' by hand to see the reason"
  done
  DISPLAY=":$(head -n 1 "$number_file")"
  export DISPLAY
  rm -f "$number_file"
  # Mesa's software renderer draws video and effects without graphics hardware.
  export LIBGL_ALWAYS_SOFTWARE=1
  openbox >/dev/null 2>&1 &
  screen_pids+=($!)
  trayer --edge bottom --align right --widthtype request --height 32 >/dev/null 2>&1 &
  screen_pids+=($!)
}

stop_screen() {
  [ ${#screen_pids[@]} -gt 0 ] && kill "${screen_pids[@]}" 2>/dev/null
  screen_pids=()
}
screen_pids=()
