#!/usr/bin/env bash
# ./packaging/test-deb.sh   builds the Debian package, installs it into a clean Debian 12 root, starts it
# there as an ordinary user on a virtual screen, and removes it again.
#
# The root is made anew in /var/tmp each time; VORN_PACKAGE_ROOT names another folder. Needs root.
set -euo pipefail
source "$(dirname "$0")/../tools/common.sh"
[ "$(id -u)" -eq 0 ] || fail "a clean root needs root" "run it again as root or with sudo"
need_packages "${build_packages[@]}" "${screen_packages[@]}" debootstrap dpkg-dev file appstream desktop-file-utils
clean_root=${VORN_PACKAGE_ROOT:-/var/tmp/vorn-package-root}
cd "$root"

mkdir -p build
configure_and_build build/package -DCMAKE_BUILD_TYPE=Release -DCMAKE_SKIP_INSTALL_ALL_DEPENDENCY=ON -- VORNApp
step "Making the package"
rm -f build/package/*.deb
(cd build/package && cpack -G DEB >cpack.log 2>&1) || {
  tail -20 build/package/cpack.log >&2
  fail "cpack" "see build/package/cpack.log"
}
package=$(echo build/package/*.deb)
desktop-file-validate packaging/linux/VORNApp.desktop || fail "the desktop entry" "see the lines above"
appstreamcli validate --no-net build/package/packaging/VORNApp.metainfo.xml ||
  fail "the AppStream metadata" "see the lines above"

umount_root() {
  for folder in tmp/.X11-unix proc dev; do
    mountpoint -q "$clean_root/$folder" && umount "$clean_root/$folder"
  done
  return 0
}
clean_up() {
  [ -n "${program:-}" ] && kill -KILL "$program" 2>/dev/null
  stop_screen
  umount_root
  rm -rf --one-file-system "$clean_root"
}
trap clean_up EXIT

step "Making a clean root"
umount_root
rm -rf --one-file-system "$clean_root"
source_uri=$(awk '/^URIs:/ {print $2; exit}' /etc/apt/sources.list.d/*.sources 2>/dev/null || true)
[ -n "$source_uri" ] ||
  source_uri=$(awk '$1 == "deb" {for (i = 2; i <= NF; i++) if ($i ~ /^http/) {print $i; exit}}' /etc/apt/sources.list)
debootstrap --variant=minbase bookworm "$clean_root" "$source_uri" >build/package/root.log 2>&1 ||
  fail "debootstrap" "see build/package/root.log"
cp /etc/resolv.conf /etc/hosts "$clean_root/etc/"
mount -t proc proc "$clean_root/proc"
mount --bind /dev "$clean_root/dev"
# What the package brought and has to take away.
listing() { (cd "$clean_root" && find opt usr/bin usr/lib/VORNApp usr/share/applications usr/share/icons usr/share/metainfo -name '*VORN*' 2>/dev/null | sort) || true; }

step "Installing $(basename "$package")"
cp "$package" "$clean_root/root/vornapp.deb"
in_clean_root() { chroot "$clean_root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
in_clean_root apt-get install -y -qq --no-install-recommends /root/vornapp.deb libgl1-mesa-dri >>build/package/root.log 2>&1 || {
  tail -20 build/package/root.log >&2
  fail "installing the package" "see the lines above"
}
listing

step "Starting it as an ordinary user"
start_screen 1280x900x24
in_clean_root useradd -m user
mkdir -p "$clean_root/tmp/.X11-unix"
mount --bind /tmp/.X11-unix "$clean_root/tmp/.X11-unix"
log=$root/build/package/program.log
chroot --userspec=user "$clean_root" env -i HOME=/home/user PATH=/usr/bin:/bin LANG=C.UTF-8 \
  DISPLAY="$DISPLAY" LIBGL_ALWAYS_SOFTWARE=1 sh -c 'cd && exec VORNApp' >"$log" 2>&1 &
program=$!
eventually xdotool search --onlyvisible --name '^VORNApp$' || { tail -20 "$log" >&2; fail "no window came up" "see $log"; }
eventually grep -q 'RecvUdpDatagram\]thread start' "$log" || fail "the program did not come up" "see $log"
eventually is_painted root || fail "the window stays empty" "see $log"
import -window root build/package/installed.png
home=$clean_root/home/user
for file in .local/share/VORNApp/config.ini .local/share/VORNApp/config.json; do
  [ -f "$home/$file" ] || fail "$file is missing in the user's home" "see $log"
done
grep -q '\[main\]file version:1\.' "$log" || fail "the version is not logged" "see $log"
kill -TERM "$program"
{ timeout 30 tail --pid="$program" -f /dev/null && wait "$program"; } || fail "it did not quit cleanly" "see $log"
program=

step "Removing it"
in_clean_root apt-get purge -y -qq vornapp >>build/package/root.log 2>&1 || fail "removing the package" "see build/package/root.log"
left=$(listing)
[ -z "$left" ] || fail "these files were left behind: $left" "see packaging/linux/Install.cmake"
[ -f "$home/.local/share/VORNApp/config.ini" ] || fail "the user's files went with the package" "see its scripts"
step "The package installs, runs and goes"
