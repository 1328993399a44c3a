# Settings and functions that the scripts of this folder share. Source this file after tools/common.sh.
# shellcheck shell=bash
# shellcheck disable=SC2034,SC2154 # shared with the scripts that source this file

windows_root=${VORN_WINDOWS_ROOT:-/var/tmp/vorn-windows-root}
# The folder of the Windows Qt inside the root. Its CMake packages contain this path.
windows_qt=/opt/qtwin

windows_packages=(
  cmake ninja-build ccache g++-mingw-w64-x86-64-posix mingw-w64-tools wine wine64 nsis wixl msitools
  qt6-base-dev qt6-base-dev-tools qt6-declarative-dev qt6-declarative-dev-tools qt6-shadertools-dev
  qt6-multimedia-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools fonts-lato
)

# Mounts the system folders into the root, and this checkout read-only at /src.
mount_root() {
  mkdir -p "$windows_root"/{proc,dev,src,build}
  mountpoint -q "$windows_root/proc" || mount -t proc proc "$windows_root/proc"
  mountpoint -q "$windows_root/dev" || mount --bind /dev "$windows_root/dev"
  mountpoint -q "$windows_root/dev/shm" || mount --bind /dev/shm "$windows_root/dev/shm"
  if ! [ "$windows_root/src/CMakeLists.txt" -ef "$root/CMakeLists.txt" ]; then
    mountpoint -q "$windows_root/src" && umount "$windows_root/src"
    mount --bind "$root" "$windows_root/src"
    mount -o remount,ro,bind "$windows_root/src"
  fi
}

# in_root <command>...   runs a command in the root.
in_root() {
  chroot "$windows_root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/build LANG=C.UTF-8 \
    CCACHE_DIR=/build/ccache CCACHE_BASEDIR=/src CCACHE_NOHASHDIR=1 QT_HASH_SEED=0 "$@"
}

# start_root_screen [<width>x<height>x<depth>]
# Starts a virtual screen for programs in the root, and sets DISPLAY. The caller has to trap EXIT with
# stop_root_screen.
start_root_screen() {
  start_screen "$@"
  mkdir -p "$windows_root/tmp/.X11-unix"
  mountpoint -q "$windows_root/tmp/.X11-unix" || mount --bind /tmp/.X11-unix "$windows_root/tmp/.X11-unix"
}

stop_root_screen() {
  stop_screen
  mountpoint -q "$windows_root/tmp/.X11-unix" && umount "$windows_root/tmp/.X11-unix"
  return 0
}

has_windows_qt() { [ -d "$windows_root$windows_qt/lib/cmake/Qt6" ]; }

# Sets `from` to the archive or folder of a Windows Qt: $VORN_WINDOWS_QT, or an archive in a folder beside
# the checkout. Fails when there is neither.
find_windows_qt() {
  from=${VORN_WINDOWS_QT:-}
  [ -n "$from" ] || from=$(find "$root/.." -maxdepth 3 -name 'qt-*mingw-w64.tar.xz' -print -quit 2>/dev/null)
  [ -n "$from" ] && [ -e "$from" ]
}

# Unpacks the Windows Qt into the root unless it is there.
need_windows_qt() {
  local from
  has_windows_qt && return
  find_windows_qt || fail "there is no Windows Qt${from:+ at $from}" \
    "set VORN_WINDOWS_QT to an archive or folder made for $windows_qt, or make one with tools/windows/make-qt.sh"
  step "Unpacking the Windows Qt"
  if [ -d "$from" ]; then
    cp -a "$from" "$windows_root$windows_qt"
  else
    tar -xf "$from" -C "$windows_root/opt"
  fi
  has_windows_qt ||
    fail "$from holds no qtwin/lib/cmake/Qt6" "use an archive that unpacks to qtwin/, or that folder"
}
