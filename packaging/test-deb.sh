#!/usr/bin/env bash
# ./packaging/test-deb.sh [release] [package]   builds, checks, installs, runs and purges the Debian package.
#
# The package is installed into a clean root of that Debian release, by default bookworm, and started there
# as an ordinary user on a virtual screen. A package given is tested instead of a new one. The root is made
# again in each run, in /var/tmp or in VORN_PACKAGE_ROOT. Needs root.
set -euo pipefail
source "$(dirname "$0")/../tools/common.sh"
print_help_if_asked "$@"
[ "$(id -u)" -eq 0 ] || fail "a clean root needs root" "run it again as root or with sudo"
release=${1:-bookworm}
clean_root=${VORN_PACKAGE_ROOT:-/var/tmp/vorn-package-root}
cd "$root"
need_packages "${build_packages[@]}" "${screen_packages[@]}" debootstrap appstream desktop-file-utils lintian

if [ -n "${2:-}" ]; then
  package=$2
else
  ./packaging/build-deb.sh build/package
  package=$(echo build/package/vornapp_*.deb)
  lintian --allow-root --fail-on error,warning build/package/vornapp-dbgsym_*.deb ||
    fail "lintian on the package of symbols" "see the lines above"
fi

step "Checking the package"
desktop-file-validate packaging/linux/com.vorn.VORNApp.desktop || fail "the desktop entry" "see the lines above"
appstreamcli validate --no-net packaging/linux/com.vorn.VORNApp.metainfo.xml ||
  fail "the AppStream metadata" "see the lines above"
lintian --allow-root --fail-on error,warning "$package" || fail "lintian" "see the lines above"

logs=$root/build/package-test
mkdir -p "$logs"
umount_root() {
  local folder
  for folder in tmp/.X11-unix proc dev; do
    if mountpoint -q "$clean_root/$folder"; then umount "$clean_root/$folder"; fi
  done
}
clean_up() {
  [ -n "${program:-}" ] && kill -KILL "$program" 2>/dev/null
  stop_screen
  umount_root
  rm -rf --one-file-system "$clean_root"
}
trap clean_up EXIT

step "Making a clean root of $release"
umount_root
rm -rf --one-file-system "$clean_root"
debootstrap --variant=minbase "$release" "$clean_root" "$(package_source)" >"$logs/root.log" 2>&1 ||
  fail "debootstrap" "see $logs/root.log"
cp /etc/resolv.conf /etc/hosts "$clean_root/etc/"
mount -t proc proc "$clean_root/proc"
mount --bind /dev "$clean_root/dev"
in_clean_root() {
  chroot "$clean_root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}
# The files of the package that are in the root.
listing() { (cd "$clean_root" && find usr -iname '*vorn*' 2>/dev/null | sort) || true; }

step "Installing $(basename "$package")"
cp "$package" "$clean_root/root/vornapp.deb"
in_clean_root apt-get install -y -qq --no-install-recommends /root/vornapp.deb libgl1-mesa-dri >>"$logs/root.log" 2>&1 || {
  tail -20 "$logs/root.log" >&2
  fail "installing the package" "see the lines above"
}
listing

step "Starting it as an ordinary user"
start_screen 1280x900x24
in_clean_root useradd -m user
mkdir -p "$clean_root/tmp/.X11-unix"
mount --bind /tmp/.X11-unix "$clean_root/tmp/.X11-unix"
log=$logs/program.log
chroot --userspec=user "$clean_root" env -i HOME=/home/user PATH=/usr/bin:/bin LANG=C.UTF-8 \
  DISPLAY="$DISPLAY" LIBGL_ALWAYS_SOFTWARE=1 sh -c 'cd && exec VORNApp' >"$log" 2>&1 &
program=$!
eventually xdotool search --onlyvisible --name '^VORNApp$' || {
  tail -20 "$log" >&2
  fail "no window is visible" "see $log"
}
eventually grep -q 'RecvUdpDatagram\]thread start' "$log" || fail "the program did not start" "see $log"
eventually is_painted root || fail "the window is empty" "see $log"
import -window root "$logs/installed.png"
home=$clean_root/home/user
for file in config.ini config.json; do
  [ -f "$home/.local/share/VORNApp/$file" ] || fail "$file is missing in the user's home" "see $log"
done
grep -q '\[main\]file version:1\.' "$log" || fail "the version is not in the log" "see $log"
kill -TERM "$program"
{ timeout 30 tail --pid="$program" -f /dev/null && wait "$program"; } || fail "it did not quit with exit code 0" "see $log"
program=

step "Purging it"
in_clean_root apt-get purge -y -qq vornapp >>"$logs/root.log" 2>&1 || fail "purging the package" "see $logs/root.log"
left=$(listing)
[ -z "$left" ] || fail "these files were left behind: $left" "see packaging/linux/Install.cmake"
[ -f "$home/.local/share/VORNApp/config.ini" ] || fail "purging removed the user's files" "see the package's scripts"
step "The package can be installed, run and purged on $release"
