#!/usr/bin/env bash
# ./tools/windows/test-installer.sh   makes the installer and tries it under Wine.
#
# Installs the program silently into a new Wine folder, starts it on a virtual screen with the installed
# files only, and removes it: first keeping the user's data, then without. Run tools/windows/test.sh first,
# which builds the program. Needs root.
set -euo pipefail
source "$(dirname "$0")/../common.sh"
source "$root/tools/windows/settings.sh"
print_help_if_asked "$@"
need_packages "${screen_packages[@]}"
mount_root

step "Making the installer"
# Notes each file in place of signing it.
# shellcheck disable=SC2016 # a parameter of the script
printf '#!/bin/sh\nbasename "$1" >>/build/signed.txt\n' >"$windows_root/build/sign.sh"
chmod +x "$windows_root/build/sign.sh"
rm -f "$windows_root/build/signed.txt"
in_root cmake -DVORN_SIGN_COMMAND=/build/sign.sh /build/windows >"$windows_root/build/configure.log" 2>&1 ||
  fail "configuring for Windows" "see $windows_root/build/configure.log"
in_root ninja -C /build/windows installer >"$windows_root/build/installer.log" 2>&1 || {
  tail -20 "$windows_root/build/installer.log" >&2
  fail "the installer" "see $windows_root/build/installer.log"
}
setup=$(cd "$windows_root" && echo build/windows/VORNApp-*-setup.exe)
ls -l "$windows_root/$setup"
(cd "$windows_root/build/windows" && sha256sum --quiet -c "$(basename "$setup").sha256") ||
  fail "the checksum of the installer" "see packaging/windows/MakeInstaller.cmake"
for file in VORNApp.exe PortalHub.dll Qt6Core.dll "$(basename "$setup")"; do
  grep -qxF "$file" "$windows_root/build/signed.txt" || fail "$file was not signed" "see packaging/windows"
done
in_root x86_64-w64-mingw32-nm "/${setup%-setup.exe}-symbols/VORNApp.exe.debug" | grep _ZN14ProcessManager9startZoomEv >/dev/null ||
  fail "there are no symbols" "see packaging/windows/MakeInstaller.cmake"

clean_up() {
  wine_plain wineboot -k >/dev/null 2>&1 || true
  stop_root_screen
}
trap clean_up EXIT
start_root_screen 1280x900x24

# wine_plain <program> [argument]...   runs a program without the paths of the Qt in the root.
prefix=/build/wine-installed
install -d -m 700 "$windows_root/build/run"
wine_plain() {
  in_root env WINEPREFIX="$prefix" WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=' XDG_RUNTIME_DIR=/build/run \
    DISPLAY="$DISPLAY" QMLSCENE_DEVICE=software wine "$@"
}
is_gone() { ! [ -e "$1" ]; }
rm -rf "$windows_root$prefix"
wine_plain wineboot -i >/dev/null 2>&1 || fail "Wine" "run wineboot in the root to see the reason"
user=$windows_root$prefix/drive_c/users/root
folder=$user/AppData/Local/Programs/VORNApp
folder_windows=C:/users/root/AppData/Local/Programs/VORNApp
link="$user/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/VORNApp.lnk"
uninstall_key='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\VORNApp'

step "Installing silently over an older version, which has a file that the new one lacks"
older=$windows_root/build/older
rm -rf "$older"
mkdir -p "$older/stage"
touch "$older/stage"/{VORNApp.exe,config.ini,config.json,config.default.json,Gone.dll}
# shellcheck disable=SC2016 # a variable of NSIS
printf 'Delete "$INSTDIR\\%s"\n' VORNApp.exe config.default.json Gone.dll >"$older/removal.nsh"
in_root makensis -V2 -XTarget\ amd64-unicode -DVERSION=0.9.0.0 -DSTAGE=/build/older/stage \
  -DREMOVAL=/build/older/removal.nsh -DICON=/src/qml/images/VORNApp.ico -DOUTPUT=/build/older/setup.exe \
  -DLANGUAGES=/src/packaging/windows/Languages.nsh \
  /src/packaging/windows/VORNApp.nsi || fail "the older installer" "see packaging/windows/VORNApp.nsi"
wine_plain Z:/build/older/setup.exe /S
[ -f "$folder/Gone.dll" ] || fail "the older version was not installed" "see packaging/windows/VORNApp.nsi"
wine_plain "Z:/$setup" /S
[ -f "$folder/Gone.dll" ] && fail "an older version's file stayed" "see packaging/windows/VORNApp.nsi"
cmp -s "$root/config/config.json" "$folder/config.json" ||
  fail "an update kept device rules that nobody has edited" "see packaging/windows/VORNApp.nsi"
for file in VORNApp.exe PortalHub.dll config.ini config.json Qt6Core.dll libglog.dll Uninstall.exe \
  plugins/platforms/qwindows.dll plugins/sqldrivers/qsqlite.dll qml/QtQuick/qmldir; do
  [ -f "$folder/$file" ] || fail "$file was not installed" "see packaging/windows"
done
[ -f "$link" ] || fail "there is no shortcut in the Start menu" "see packaging/windows/VORNApp.nsi"
wine_plain reg query "$uninstall_key" /v DisplayVersion >/dev/null ||
  fail "Windows does not list the program" "see packaging/windows/VORNApp.nsi"
wine_plain tasklist | grep -q VORNApp && fail "the installer started the program" "see packaging/windows/VORNApp.nsi"

step "Starting the installed program"
program_log=$windows_root/build/installed.log
wine_plain "$folder_windows/VORNApp.exe" >"$program_log" 2>&1 &
program=$!
eventually grep -q 'RecvUdpDatagram\]thread start' "$program_log" ||
  { tail -20 "$program_log" >&2; fail "the program did not come up" "see $program_log"; }
eventually xdotool search --onlyvisible --name '^VORNApp$' ||
  { tail -5 "$program_log" >&2; fail "no window came up" "see $program_log"; }
eventually is_painted root || { tail -5 "$program_log" >&2; fail "the window stays black" "see $program_log"; }
import -window root "$windows_root/build/installed.png"
[ -f "$folder/userdata.db" ] || fail "the user's data are not beside the program" "see $program_log"
wine_plain "Z:/$setup" /S && fail "it was replaced while it ran" "see packaging/windows/VORNApp.nsi"
wine_plain taskkill /IM VORNApp.exe /F >/dev/null
wait "$program" || true

step "Removing it, keeping the user's data"
printf '[VORNApp]\nuse_remote_device=false\n' >"$folder/config.ini"
printf '{}' >"$folder/config.json"
wine_plain "$folder_windows/Uninstall.exe" /S
eventually is_gone "$folder/Uninstall.exe" || fail "the uninstaller is still there" "see packaging/windows/VORNApp.nsi"
left=$(find "$folder" -mindepth 1 -maxdepth 1 -printf '%f\n' | sort | tr '\n' ' ')
[ "$left" = "config.ini config.json userdata.db " ] || fail "left behind: $left" "see packaging/windows"
is_gone "$link" || fail "the shortcut is still there" "see packaging/windows/VORNApp.nsi"
wine_plain reg query "$uninstall_key" >/dev/null 2>&1 &&
  fail "Windows still lists the program" "see packaging/windows/VORNApp.nsi"

wine_plain "Z:/$setup" /S
grep -q 'use_remote_device=false' "$folder/config.ini" ||
  fail "an update overwrote the user's settings" "see packaging/windows/VORNApp.nsi"
[ "$(cat "$folder/config.json")" = '{}' ] || fail "an update overwrote edited device rules" "see packaging/windows/VORNApp.nsi"
cmp -s "$root/config/config.json" "$folder/config.default.json" ||
  fail "the new device rules do not lie beside the edited ones" "see packaging/windows/VORNApp.nsi"
wine_plain "$folder_windows/Uninstall.exe" /S /PURGE
eventually is_gone "$folder" || fail "left behind: $(ls -A "$folder")" "see packaging/windows"
step "The program installs, runs and is removed"
