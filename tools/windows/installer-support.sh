# Functions of the installers' tests. Source this file after settings.sh.
# shellcheck shell=bash
# shellcheck disable=SC2034,SC2154 # shared with the scripts that source this file

# Makes the installer and the package for Windows Installer. Sets `setup` and `msi` to their paths in the root.
make_packages() {
  step "Making the packages"
  # Notes each file in place of signing it.
  # shellcheck disable=SC2016 # a parameter of the script
  printf '#!/bin/sh\nbasename "$1" >>/build/signed.txt\n' >"$windows_root/build/sign.sh"
  chmod +x "$windows_root/build/sign.sh"
  rm -rf "$windows_root/build/signed.txt" "$windows_root"/build/windows/VORNApp-*
  in_root cmake -DVORN_SIGN_COMMAND=/build/sign.sh /build/windows >"$windows_root/build/configure.log" 2>&1 ||
    fail "configuring for Windows" "see $windows_root/build/configure.log"
  in_root ninja -C /build/windows installer >"$windows_root/build/installer.log" 2>&1 || {
    tail -20 "$windows_root/build/installer.log" >&2
    fail "the packages" "see $windows_root/build/installer.log"
  }
  setup=$(cd "$windows_root" && echo build/windows/VORNApp-*-setup.exe)
  msi=$(cd "$windows_root" && echo build/windows/VORNApp-*.msi)
  local package
  for package in "$setup" "$msi"; do
    ls -l "$windows_root/$package"
    (cd "$windows_root/build/windows" && sha256sum --quiet -c "$(basename "$package").sha256") ||
      fail "the checksum of $package" "see packaging/windows"
  done
}

# new_windows <folder in the root>   makes a Windows for the functions below, and sets `user` to the user's folder.
new_windows() {
  prefix=$1
  install -d -m 700 "$windows_root/build/run"
  rm -rf "${windows_root:?}$prefix"
  wine_plain wineboot -i >/dev/null 2>&1 || fail "Wine" "run wineboot in the root to see the reason"
  user=$windows_root$prefix/drive_c/users/root
}

# wine_plain <program> [argument]...   runs a program without the paths of the Qt in the root.
wine_plain() {
  in_root env WINEPREFIX="$prefix" WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=' XDG_RUNTIME_DIR=/build/run \
    DISPLAY="$DISPLAY" QMLSCENE_DEVICE=software wine "$@"
}

# Runs a program as wine_plain does, in place of this shell. Call it in the background.
become_wine() {
  exec chroot "$windows_root" env -i PATH=/usr/bin:/bin HOME=/build LANG=C.UTF-8 WINEPREFIX="$prefix" WINEDEBUG=-all \
    WINEDLLOVERRIDES='mscoree,mshtml=' XDG_RUNTIME_DIR=/build/run DISPLAY="$DISPLAY" QMLSCENE_DEVICE=software wine "$@"
}

clean_up() {
  wine_plain wineboot -k >/dev/null 2>&1 || true
  stop_root_screen
}

is_gone() { ! [ -e "$1" ]; }
runs() { wine_plain tasklist | grep -q 'VORNApp\.exe'; }
is_ended() { ! runs; }

# start_installed <folder as Windows names it>   starts the installed program, and sets `program` to its process.
start_installed() {
  program_log=$windows_root/build/installed.log
  become_wine "$1/VORNApp.exe" >"$program_log" 2>&1 &
  program=$!
  eventually grep -q 'RecvUdpDatagram\]thread start' "$program_log" ||
    { tail -20 "$program_log" >&2; fail "the program did not come up" "see $program_log"; }
  eventually xdotool search --onlyvisible --name '^VORNApp$' ||
    { tail -5 "$program_log" >&2; fail "no window came up" "see $program_log"; }
  eventually is_painted root || { tail -5 "$program_log" >&2; fail "the window stays black" "see $program_log"; }
}

# has_quit <process>   whether the program has ended in order.
has_quit() { wait "$1" && grep -q 'VORNApp quit!!!' "$program_log"; }
