#!/usr/bin/env bash
# ./packaging/test-rpm.sh   builds the RPM of packaging/linux/vornapp.spec, and runs the program from it.
#
# The sources are those of the last commit. On a system with another package manager the build takes the
# libraries of that system, so the dependencies in the package are checked on Fedora only. The package is
# unpacked into a temporary folder and started there on a virtual screen. It is left in build/rpm.
set -euo pipefail
source "$(dirname "$0")/../tools/common.sh"
print_help_if_asked "$@"
need_packages "${build_packages[@]}" "${run_packages[@]}" "${screen_packages[@]}" rpm cpio desktop-file-utils git
cd "$root"
top=$root/build/rpm
mkdir -p "$top/SOURCES"
version=$(cmake -P packaging/PrintVersion.cmake 2>&1)

step "Building vornapp-$version"
git archive --prefix="vornapp-$version/" -o "$top/SOURCES/vornapp-$version.tar.gz" HEAD
rpmbuild -bb --nodeps --define "_topdir $top" --define "vorn_version $version" \
  --define "lato_dir /usr/share/fonts/truetype/lato" packaging/linux/vornapp.spec >"$top/rpmbuild.log" 2>&1 || {
  tail -20 "$top/rpmbuild.log" >&2
  fail "rpmbuild" "see $top/rpmbuild.log"
}
package=$(find "$top/RPMS" -name "vornapp-$version-*.rpm" -not -name '*debug*' | head -n 1)
rpm -qip "$package"
rpm -qlp "$package"

step "Starting the program of the package"
work=$(mktemp -d)
clean_up() {
  [ -n "${program:-}" ] && kill -KILL "$program" 2>/dev/null
  stop_screen
  rm -rf "$work"
}
trap clean_up EXIT
(cd "$work" && rpm2cpio "$package" | cpio -idm --quiet)
mkdir -m 700 "$work/home" "$work/run"
start_screen 1280x900x24
env -u WAYLAND_DISPLAY HOME="$work/home" XDG_RUNTIME_DIR="$work/run" TMPDIR="$work/run" \
  "$work/usr/bin/VORNApp" >"$top/program.log" 2>&1 &
program=$!
eventually xdotool search --onlyvisible --name '^VORNApp$' || fail "no window is visible" "see $top/program.log"
eventually grep -q 'RecvUdpDatagram\]thread start' "$top/program.log" ||
  fail "the program did not start" "see $top/program.log"
kill -TERM "$program"
{ timeout 30 tail --pid="$program" -f /dev/null && wait "$program"; } ||
  fail "it did not quit with exit code 0" "see $top/program.log"
program=
step "The program of $(basename "$package") starts and quits"
