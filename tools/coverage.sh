#!/usr/bin/env bash
# ./tools/coverage.sh [ctest option]...   runs all tests and prints the line coverage of each room.
#
# A page for each file is left in build/coverage/report. Failing tests are named, and do not end the run.
set -euo pipefail
source "$(dirname "$0")/common.sh"
print_help_if_asked "$@"
need_packages "${build_packages[@]}" "${run_packages[@]}" "${screen_packages[@]}" "${test_packages[@]}" gcovr
cd "$root"
mkdir -p build
configure_and_build build/coverage --preset coverage
find build/coverage -name '*.gcda' -delete
trap stop_screen EXIT
start_screen 1920x1200x24
step "Testing"
dbus-run-session -- ctest --preset coverage "$@" >build/coverage/tests.log 2>&1 || true
grep -E '(\*\*\*|tests passed)' build/coverage/tests.log || fail "ctest" "see build/coverage/tests.log"

step "Line coverage"
mkdir -p build/coverage/report
gcovr -r . build/coverage --exclude 'build/.*' --exclude 'tests/.*' --exclude 'bench/.*' --exclude 'rig/.*' \
  --exclude 'tools/.*' --exclude-throw-branches --html-details build/coverage/report/index.html \
  --csv build/coverage/lines.csv --gcov-ignore-parse-errors
awk -F, 'NR > 1 {
    room = $1
    sub(/\/.*/, "", room)
    lines[room] += $2
    covered[room] += $3
    all += $2
    all_covered += $3
  }
  END {
    for (room in lines) printf "%-14s %6d lines %6.1f %%\n", room, lines[room], 100 * covered[room] / lines[room] | "sort"
    close("sort")
    printf "%-14s %6d lines %6.1f %%\n", "all", all, 100 * all_covered / all
  }' build/coverage/lines.csv
