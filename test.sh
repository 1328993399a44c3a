#!/usr/bin/env bash
# ./test.sh [preset]...   installs missing packages, builds, and runs every test.
#
# A preset is dev (the default), asan, tsan or release. The tests run on a virtual screen.
set -euo pipefail
source "$(dirname "$0")/tools/common.sh"
print_help_if_asked "$@"
presets=("$@")
[ ${#presets[@]} -gt 0 ] || presets=(dev)
for preset in "${presets[@]}"; do
  case "$preset" in dev | asan | tsan | release) ;; *) fail "there is no preset '$preset'" "use dev, asan, tsan or release" ;; esac
done

need_packages "${build_packages[@]}" "${run_packages[@]}" "${screen_packages[@]}" "${test_packages[@]}"
cd "$root"
trap stop_screen EXIT
start_screen 1920x1200x24
for preset in "${presets[@]}"; do
  mkdir -p build
  configure_and_build "build/$preset" --preset "$preset"
  step "Testing $preset"
  # A separate session bus keeps the tests away from the user's desktop.
  dbus-run-session -- ctest --preset "$preset" || fail "tests of $preset" \
    "see the output above; to run one test again, on a screen: ctest --preset $preset -R <name>"
done
