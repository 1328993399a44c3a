#!/usr/bin/env bash
# ./tools/fuzz.sh [<seconds> [<name>...]]   runs the fuzzers, each for the given time (20 s).
# As many run at a time as there are processors.
#
# A name is that of a source in fuzz/, for example MessageLine. Inputs that a fuzzer finds are kept in
# build/fuzz/corpus and used by the next run. An input that makes a parser fail is written to
# build/fuzz/findings, and the exit code is 1. Repeat it with: build/fuzz/bin/fuzz_<name> <file>
set -euo pipefail
source "$(dirname "$0")/common.sh"
print_help_if_asked "$@"
need_packages "${build_packages[@]}" clang libclang-rt-dev
cd "$root"
seconds=${1:-20}
shift || true
names=("$@")
if [ ${#names[@]} -eq 0 ]; then
  for folder in fuzz/seeds/*/; do names+=("$(basename "$folder")"); done
fi
mkdir -p build
configure_and_build build/fuzz --preset fuzz -- fuzzers

export ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
export LSAN_OPTIONS=suppressions=$root/cmake/lsan.supp:print_suppressions=0
work=build/fuzz

# run_fuzzer <name>   prints its figures at the end.
run_fuzzer() {
  local name=$1 log=$work/$1.log result=0 coverage executions
  mkdir -p "$work/corpus/$name" "$work/findings/$name"
  # Inputs above 64 KB only slow the search down.
  "$work/bin/fuzz_$name" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=65536 \
    -print_final_stats=1 -artifact_prefix="$work/findings/$name/" \
    "$work/corpus/$name" "fuzz/seeds/$name" >"$log" 2>&1 || result=1
  [ "$result" -eq 0 ] || grep -E '^==|^SUMMARY|requirement not met|Test unit written' "$log" | head -8
  coverage=$(grep -oE 'cov: [0-9]+' "$log" | tail -n 1 || true)
  executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  printf '%s: %s executions, coverage %s edges, corpus of %s inputs\n' "$name" "${executions:-no}" \
    "${coverage#cov: }" "$(find "$work/corpus/$name" -type f | wc -l)"
  return "$result"
}

step "Fuzzing each of ${#names[@]} parsers for $seconds s"
findings=0
running=0
for name in "${names[@]}"; do
  if [ "$running" -ge "$(nproc)" ]; then
    wait -n || findings=$((findings + 1))
    running=$((running - 1))
  fi
  run_fuzzer "$name" &
  running=$((running + 1))
done
while [ "$running" -gt 0 ]; do
  wait -n || findings=$((findings + 1))
  running=$((running - 1))
done
if [ "$findings" -gt 0 ]; then
  fail "$findings of ${#names[@]} fuzzers found an input that fails" "see build/fuzz/findings"
fi
