#!/usr/bin/env bash
# ./packaging/test-debian13.sh [ctest option]...   builds and tests the program on Debian 13, with Qt 6.8.
#
# Builds the Debian package and all tests with warnings as errors in the root of tools/windows/make-root.sh,
# runs the tests there on a virtual screen, and then installs, runs and purges the package in a clean root of
# Debian 13. Needs root.
set -euo pipefail
source "$(dirname "$0")/../tools/common.sh"
source "$root/tools/windows/settings.sh"
print_help_if_asked "$@"
[ "$(id -u)" -eq 0 ] || fail "the Debian root needs root" "run it again as root or with sudo"
cd "$root"
./tools/windows/make-root.sh
mount_root

in_root env SOURCE_DATE_EPOCH="$(git log -1 --format=%ct)" /src/packaging/build-deb.sh /build/debian13-package

# shellcheck disable=SC2016 # expanded in the root
in_root bash -c '
  set -euo pipefail
  source /src/tools/common.sh
  need_packages "${build_packages[@]}" "${run_packages[@]}" "${screen_packages[@]}" "${test_packages[@]}"
  configure_and_build /build/debian13 -DCMAKE_BUILD_TYPE=Debug -DVORN_BUILD_TESTS=ON -DVORN_WARNINGS_AS_ERRORS=ON
  step "Testing on Debian 13"
  mkdir -p -m 700 /build/run
  export XDG_RUNTIME_DIR=/build/run
  trap stop_screen EXIT
  start_screen 1920x1200x24
  dbus-run-session -- ctest --test-dir /build/debian13 --output-on-failure --no-tests=error -j 2 "$@"
' test "$@" || fail "Debian 13" "see the lines above"

./packaging/test-deb.sh trixie "$windows_root"/build/debian13-package/vornapp_*.deb
