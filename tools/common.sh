# Shared by run.sh, test.sh and the tools; to be sourced.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Compiled objects are found again from another checkout of the same sources.
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1
# Qt's generators write in the order of a hash: with one seed the same sources give the same code.
export QT_HASH_SEED=0

build_packages=(
  cmake ninja-build g++ ccache pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-declarative-dev qt6-declarative-dev-tools qt6-multimedia-dev
  qt6-httpserver-dev qt6-websockets-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
  libgl-dev libgoogle-glog-dev fonts-lato
)
run_packages=(
  libqt6sql6-sqlite libgl1-mesa-dri
  qml6-module-qtqml qml6-module-qtqml-workerscript
  qml6-module-qtquick qml6-module-qtquick-window qml6-module-qtquick-controls
  qml6-module-qtquick-templates qml6-module-qtquick-layouts qml6-module-qtquick-dialogs
  qml6-module-qt-labs-folderlistmodel
  qml6-module-qtmultimedia qml6-module-qt5compat-graphicaleffects
)
# A virtual screen with a window manager and a tray, to see minimising, stay-on-top and tray clicks.
screen_packages=(xvfb xauth xdotool x11-utils imagemagick openbox trayer dbus)
test_packages=(qml6-module-qttest sqlite3)
lint_packages=(clang-format clang-tidy g++-mingw-w64-x86-64-posix)

step() { printf '\n==> %s\n' "$*"; }

# fail <what failed> <how to mend it>
fail() {
  printf '\nFAILED: %s\n' "$1" >&2
  [ -n "${2:-}" ] && printf 'To mend it: %s\n' "$2" >&2
  exit 1
}

# Installs what is missing of the packages given.
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
      "look at the lines above; the network and the package sources are the usual reasons"
  fi
  rm -f "$log"
}

# configure_and_build <folder> <cmake arguments...> [-- <ninja targets...>]
configure_and_build() {
  local folder=$1 arguments=() targets=()
  shift
  while [ $# -gt 0 ] && [ "$1" != -- ]; do arguments+=("$1"); shift; done
  [ $# -gt 0 ] && shift && targets=("$@")
  step "Configuring $folder"
  cmake -S "$root" -B "$root/$folder" -G Ninja "${arguments[@]}" >"$root/$folder.configure.log" 2>&1 || {
    tail -30 "$root/$folder.configure.log" >&2
    fail "configuring" "look at $folder.configure.log; a stale folder is mended by removing $folder"
  }
  rm -f "$root/$folder.configure.log"
  step "Building $folder"
  ninja -C "$root/$folder" "${targets[@]}" || fail "building $folder" "look at the compiler's first message above"
}

# Until the command succeeds, 60 s at most.
eventually() {
  local deadline=$((SECONDS + 60))
  until "$@" >/dev/null 2>&1; do
    sleep 0.05
    [ $SECONDS -lt $deadline ] || return 1
  done
}

# Whether there is something to be seen in a window, or with "root" on the screen.
is_painted() { [ "$(import -window "$1" png:- 2>/dev/null | identify -format '%[fx:mean>0.02]' - 2>/dev/null)" = 1 ]; }

# Starts a virtual screen with a window manager and a tray, and sets DISPLAY. Ends with the script.
start_screen() {
  local number_file
  number_file=$(mktemp)
  Xvfb -displayfd 3 -screen 0 "${1:-1920x1200x24}" -nolisten tcp 3>"$number_file" >/dev/null 2>&1 &
  screen_pids=($!)
  local tries=0
  until [ -s "$number_file" ]; do
    sleep 0.05
    tries=$((tries + 1))
    [ $tries -lt 400 ] || fail "the virtual screen did not start" "run 'Xvfb :99' by hand to see why"
  done
  DISPLAY=":$(head -n 1 "$number_file")"
  export DISPLAY
  rm -f "$number_file"
  # Mesa's software renderer draws video and effects without a graphics card.
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
