#!/usr/bin/env bash
# ./tools/windows/test-msi.sh   makes the package for Windows Installer and tries it under Wine.
#
# Installs it silently for all users, starts the program from a folder that it cannot write, updates it while
# it runs, and removes it. Run tools/windows/test.sh first, which builds the program. Needs root.
set -euo pipefail
source "$(dirname "$0")/../common.sh"
source "$root/tools/windows/settings.sh"
source "$root/tools/windows/installer-support.sh"
print_help_if_asked "$@"
need_packages "${screen_packages[@]}"
mount_root

make_packages
# other_package <version> <file>...   makes a package of a program that does nothing, and files that hold their names.
other_package() {
  local version=$1 stage=$windows_root/build/other-msi/stage
  shift
  rm -rf "$stage"
  mkdir -p "$stage"
  echo 'int main(void) { return 0; }' >"$windows_root/build/other-msi/main.c"
  in_root x86_64-w64-mingw32-gcc -o /build/other-msi/stage/VORNApp.exe /build/other-msi/main.c
  for file in "$@"; do printf '%s' "$file" >"$stage/$file"; done
  in_root cmake -DSTAGE=/build/other-msi/stage -DWIXL=wixl -DMSIINFO=msiinfo -DMSIBUILD=msibuild "-DVERSION=$version" \
    -DICON=/src/qml/images/VORNApp.ico "-DOUTPUT=/build/other-msi/$version.msi" \
    -P /src/packaging/windows/MakeMsi.cmake
}
other_package 0.9.0.0 config.ini config.json config.default.json Gone.dll
other_package 9.0.0.0 config.ini

trap clean_up EXIT
start_root_screen 1280x900x24
new_windows /build/wine-msi
folder=$windows_root$prefix/drive_c/Program\ Files/VORNApp
folder_windows='C:/Program Files/VORNApp'
# Wine makes it for the user even where a package is for all users.
link="$user/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/VORNApp.lnk"
own=$user/AppData/Local/VORNApp
# install_msi <argument>...   runs Windows Installer silently, with a log.
install_msi() { wine_plain msiexec "$@" /qn /l\*v 'C:\msi.log'; }
log=$windows_root$prefix/drive_c/msi.log

# Wine forgets after an upgrade that the product can be upgraded, so each part begins without the product.
step "Installing, and refusing an older version"
install_msi /i "Z:/$msi" || fail "the installation: code $?" "see $log"
(cd "$windows_root/build/windows/stage" && find . -type f -print0 | sort -z | xargs -0 sha256sum) |
  (cd "$folder" && sha256sum --quiet -c -) || fail "a file was not installed" "see $log"
[ -f "$link" ] || fail "there is no shortcut in the Start menu" "see $log"
listed() {
  wine_plain reg query 'HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall' /s /reg:64 |
    grep -c 'DisplayName .*VORNApp' || true
}
[ "$(listed)" = 1 ] || fail "Windows lists the program $(listed) times" "see $log"
code=0
install_msi /i Z:/build/other-msi/0.9.0.0.msi || code=$?
[ $code -ne 0 ] || fail "an older version was installed over it" "see packaging/windows/VORNApp.wxs.in"

step "Starting the program from a folder that it cannot write"
mount --bind "$folder" "$folder"
mount -o remount,ro,bind "$folder"
start_installed "$folder_windows"
for file in config.ini config.json userdata.db; do
  [ -f "$own/$file" ] || fail "the user's $file is not in the user's folder" "see platform/windows/Folders.cpp"
done
umount --lazy "$folder" # the program uses it

step "Upgrading it while it runs"
install_msi /i Z:/build/other-msi/9.0.0.0.msi || fail "the upgrade: code $?" "see $log"
has_quit "$program" || fail "the program did not quit in order" "see $program_log"
cmp -s "$windows_root/build/other-msi/stage/VORNApp.exe" "$folder/VORNApp.exe" ||
  fail "the program was not replaced" "see $log"
[ -e "$folder/Qt6Core.dll" ] && fail "an older version's library stayed" "see $log"
install_msi /x Z:/build/other-msi/9.0.0.0.msi || fail "the removal: code $?" "see $log"

step "Upgrading an older version with edited settings"
install_msi /i Z:/build/other-msi/0.9.0.0.msi || fail "the older version: code $?" "see $log"
[ -f "$folder/Gone.dll" ] || fail "the older version was not installed" "see $log"
printf '[VORNApp]\nuse_remote_device=false\n' >"$folder/config.ini"
install_msi /i "Z:/$msi" || fail "the upgrade: code $?" "see $log"
[ -f "$folder/Gone.dll" ] && fail "an older version's file stayed" "see $log"
grep -q 'use_remote_device=false' "$folder/config.ini" || fail "the upgrade replaced an edited config.ini" "see $log"

step "Removing it while it runs"
start_installed "$folder_windows"
install_msi /x "Z:/$msi" || fail "the removal: code $?" "see $log"
has_quit "$program" || fail "the program did not quit in order" "see $program_log"
for file in config.ini userdata.db; do rm -f "$folder/$file"; done # of the program, which root can write there
is_gone "$folder" || rmdir "$folder" || fail "left behind: $(ls -A "$folder")" "see $log"
is_gone "$link" || fail "the shortcut is still there" "see $log"
[ "$(listed)" = 0 ] || fail "Windows still lists the program" "see $log"
[ -f "$own/userdata.db" ] || fail "the user's data were removed" "see $log"
step "The package installs, runs, is upgraded and is removed"
