# Shared by the scripts of this folder; to be sourced after tools/common.sh.

windows_root=${VORN_WINDOWS_ROOT:-/var/tmp/vorn-windows-root}
# Where the Windows Qt lies inside the root; its package files name this place.
windows_qt=/opt/qtwin

windows_packages=(
  cmake ninja-build ccache g++-mingw-w64-x86-64-posix mingw-w64-tools wine wine64 nsis
  qt6-base-dev qt6-base-dev-tools qt6-declarative-dev qt6-declarative-dev-tools qt6-shadertools-dev
  qt6-multimedia-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools fonts-lato
)

# Mounts what programs in the root need: the system's folders and this checkout, read-only, at /src.
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

# Runs a command in the root.
in_root() {
  chroot "$windows_root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/build LANG=C.UTF-8 \
    CCACHE_DIR=/build/ccache CCACHE_BASEDIR=/src CCACHE_NOHASHDIR=1 QT_HASH_SEED=0 "$@"
}

# Sets `from` to the Windows Qt of $VORN_WINDOWS_QT, an archive or a folder, or where nothing is set to an
# archive in a folder beside the checkout; to nothing when the root holds one already.
find_windows_qt() {
  from=""
  [ -d "$windows_root$windows_qt/lib/cmake/Qt6" ] && return
  from=${VORN_WINDOWS_QT:-}
  [ -n "$from" ] || from=$(find "$root/.." -maxdepth 3 -name 'qt-*mingw-w64.tar.xz' -print -quit 2>/dev/null)
  [ -n "$from" ] || fail "there is no Windows Qt" \
    "set VORN_WINDOWS_QT to an archive or folder of one made for /opt/qtwin, or make one with tools/windows/make-qt.sh (80 minutes on two cores)"
  [ -e "$from" ] || fail "there is no Windows Qt at $from" "set VORN_WINDOWS_QT to an archive or folder"
}

# Puts it into the root.
need_windows_qt() {
  local from
  find_windows_qt
  [ -n "$from" ] || return 0
  step "Unpacking the Windows Qt"
  if [ -d "$from" ]; then
    cp -a "$from" "$windows_root$windows_qt"
  else
    tar -xf "$from" -C "$windows_root/opt"
  fi
  [ -d "$windows_root$windows_qt/lib/cmake/Qt6" ] ||
    fail "$from holds no qtwin/lib/cmake/Qt6" "give an archive that unpacks to qtwin/, or that folder"
}
