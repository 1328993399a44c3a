#!/usr/bin/env bash
# ./bench/faults/run.sh [--results <folder>] [<fault>...]
#
# Lets the system fail under the whole program, fault by fault, and prints a table: what the user sees, what
# the log says, what is lost. Exit code 0 means that every check of every fault holds. Without names all
# faults are made: disk_full read_only clock suspend stop descriptors memory shared_memory x_server
# compositor dbus tray.
#
# Runs in namespaces of its own, so that mounts, processes, ports and shared memory are its own as well.
set -uo pipefail
here=$(realpath "$(dirname "$0")")
source "$here/../../tools/common.sh"
if [ -z "${VORN_FAULT_SANDBOX:-}" ]; then
  need_packages "${build_packages[@]}" "${run_packages[@]}" "${screen_packages[@]}" python3 util-linux
  configure_and_build build/dev --preset dev -DVORN_BUILD_BENCH=ON -- \
    VORNApp VORNSimulator PatchPilot zoom fault_shim || exit 1
  as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(--map-root-user)
  # shellcheck disable=SC2016 # the inner shell expands them
  exec env VORN_FAULT_SANDBOX=1 unshare "${as_root[@]}" --net --ipc --pid --fork --kill-child --mount \
    --mount-proc bash -c 'dbus-run-session -- "$0" "$@"; exit' "$here/run.sh" "$@"
fi

results=$root/build/faults
if [ "${1:-}" = --results ]; then
  results=$(realpath "$2")
  shift 2
fi
rm -rf "$results"
mkdir -p "$results"
mount -t tmpfs tmpfs /tmp
mount -t tmpfs -o size=64M tmpfs /dev/shm
mkdir -m 1777 /tmp/.X11-unix
ip link set lo up
source "$root/tools/tour-support.sh"
source "$root/tools/tour-linux.sh"
source "$root/tools/tour-meeting.sh"
source "$here/support.sh"
source "$here/system.sh"
source "$here/session.sh"

readonly account=ada@example.com password=Engine1843
# shellcheck disable=SC2034 # the sourced files use these
bin=$root/build/dev/bin shim=$root/build/dev/bin/libfault_shim.so
[ $# -gt 0 ] || set -- disk_full read_only clock suspend stop descriptors memory shared_memory \
  x_server compositor dbus tray
{
  echo '| fault | what the user sees | what the log says | what is lost | result |'
  echo '|---|---|---|---|---|'
} >"$results/table.md"
for fault in "$@"; do ("fault_$fault"); done # each with an environment of its own

step "Table (details in $results)"
cat "$results/table.md"
passed=$(grep -c "| pass |$" "$results/table.md")
[ "$passed" -eq $# ] || fail "$(($# - passed)) of $# faults" "see $results"
