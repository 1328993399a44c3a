#!/usr/bin/env bash
# ./tools/windows/test-installer.sh   makes the installer and tries it under Wine.
#
# Installs the program silently into a new Wine folder, starts it on a virtual screen with the installed
# files only, updates it while it runs, and removes it: first keeping the user's data, then without. Run
# tools/windows/test.sh first, which builds the program. Needs root.
set -euo pipefail
source "$(dirname "$0")/../common.sh"
source "$root/tools/windows/settings.sh"
source "$root/tools/windows/installer-support.sh"
print_help_if_asked "$@"
need_packages "${screen_packages[@]}"
mount_root

make_packages
for file in VORNApp.exe PortalHub.dll Qt6Core.dll "$(basename "$setup")" "$(basename "$msi")"; do
  grep -qxF "$file" "$windows_root/build/signed.txt" || fail "$file was not signed" "see packaging/windows"
done
in_root x86_64-w64-mingw32-nm "/${setup%-setup.exe}-symbols/VORNApp.exe.debug" | grep _ZN14ProcessManager9startZoomEv >/dev/null ||
  fail "there are no symbols" "see packaging/windows/MakeInstaller.cmake"

trap clean_up EXIT
start_root_screen 1280x900x24
new_windows /build/wine-installed
folder=$user/AppData/Local/Programs/VORNApp
folder_windows=C:/users/root/AppData/Local/Programs/VORNApp
logs=$windows_root$prefix/drive_c/ProgramData/VORNApp
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
runs && fail "the installer started the program" "see packaging/windows/VORNApp.nsi"

step "Starting the installed program"
start_installed "$folder_windows"
import -window root "$windows_root/build/installed.png"
[ -f "$folder/userdata.db" ] || fail "the user's data are not beside the program" "see $program_log"

step "Updating it while it runs"
touch "$windows_root/build/before-update"
wine_plain "Z:/$setup" /S || fail "the update ended with the code $?" "see packaging/windows/VORNApp.nsi"
has_quit "$program" || fail "the program did not quit in order" "see $program_log"
started_again() {
  find "$logs" -name '*.log' -newer "$windows_root/build/before-update" -exec grep -l 'RecvUdpDatagram\]thread start' {} + |
    grep -q . && runs
}
eventually started_again || fail "the update did not start the program again" "see packaging/windows/VORNApp.nsi"
wine_plain "$folder_windows/VORNApp.exe" --quit || fail "--quit ended with the code $?" "see app/SingleInstance.cpp"
runs && fail "the program still runs after --quit" "see app/SingleInstance.cpp"
wine_plain "$folder_windows/VORNApp.exe" --quit || fail "--quit fails where no program runs" "see app/SingleInstance.cpp"

step "Leaving a program alone that does not end"
start_installed "$folder_windows"
kill -STOP "$program"
code=0
wine_plain "Z:/$setup" /S || code=$?
[ $code -eq 3 ] || fail "the exit code is $code, not 3" "see packaging/windows/VORNApp.nsi"
[ -f "$folder/Qt6Core.dll" ] || fail "files of the running program were removed" "see packaging/windows/VORNApp.nsi"
kill -CONT "$program"
wine_plain "$folder_windows/VORNApp.exe" --quit || fail "--quit ended with the code $?" "see app/SingleInstance.cpp"
has_quit "$program" || fail "the program did not quit in order" "see $program_log"

step "Removing it while it runs, keeping the user's data"
start_installed "$folder_windows"
printf '[VORNApp]\nuse_remote_device=false\n' >"$folder/config.ini"
printf '{}' >"$folder/config.json"
wine_plain "$folder_windows/Uninstall.exe" /S
eventually is_gone "$folder/Uninstall.exe" || fail "the uninstaller is still there" "see packaging/windows/VORNApp.nsi"
has_quit "$program" || fail "the program did not quit in order" "see $program_log"
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
step "The program installs, runs, is updated and is removed"
