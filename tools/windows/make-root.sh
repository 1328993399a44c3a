#!/usr/bin/env bash
# ./tools/windows/make-root.sh [folder]   makes a Debian 13 root that builds and runs Windows programs.
#
# The root holds MinGW-w64 (GCC 14, posix threads), Qt's host tools, Wine, NSIS and msitools. It takes five
# minutes; a second run installs only missing packages. Needs root and uses the package source of this
# machine. The default folder is $VORN_WINDOWS_ROOT, or /var/tmp/vorn-windows-root.
set -euo pipefail
source "$(dirname "$0")/../common.sh"
source "$root/tools/windows/settings.sh"
windows_root=${1:-$windows_root}

[ "$(id -u)" -eq 0 ] || fail "making a root needs root" "run it again as root or with sudo"
need_packages debootstrap

if [ ! -x "$windows_root/usr/bin/apt-get" ]; then
  step "Making a Debian 13 root in $windows_root"
  debootstrap --variant=minbase trixie "$windows_root" "$(package_source)" >"/tmp/debootstrap.$$.log" 2>&1 || {
    tail -20 "/tmp/debootstrap.$$.log" >&2
    fail "debootstrap" "see the lines above"
  }
  rm -f "/tmp/debootstrap.$$.log"
fi
# The root can be made again at any time, so dpkg need not wait for the disk.
echo force-unsafe-io >"$windows_root/etc/dpkg/dpkg.cfg.d/unsafe-io"
cp /etc/resolv.conf /etc/hosts "$windows_root/etc/" 2>/dev/null || true
mount_root
list=$(printf '%s\n' "${windows_packages[@]}")
if [ "$(cat "$windows_root/var/lib/vorn-packages" 2>/dev/null)" != "$list" ]; then
  step "Installing ${#windows_packages[@]} packages in the root"
  in_root apt-get update -qq
  in_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${windows_packages[@]}" >"$windows_root/var/log/vorn-packages.log" 2>&1 || {
    tail -20 "$windows_root/var/log/vorn-packages.log" >&2
    fail "the packages could not be installed" "see the lines above"
  }
  printf '%s\n' "$list" >"$windows_root/var/lib/vorn-packages"
fi
