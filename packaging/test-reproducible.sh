#!/usr/bin/env bash
# ./packaging/test-reproducible.sh   builds the Debian package twice, in two folders, and compares the results.
#
# Each build has a checkout of its own of the last commit, its own build folder, umask and time zone, and no
# compiler cache. Where the packages differ, diffoscope shows how.
set -euo pipefail
source "$(dirname "$0")/../tools/common.sh"
print_help_if_asked "$@"
need_packages git
cd "$root"
work=$(mktemp -d -p /var/tmp)
trap 'rm -rf "$work"' EXIT

# build <checkout> <time zone> <umask>
build() {
  step "Building in $work/$1"
  mkdir -p "$(dirname "$work/$1")"
  git clone -q --no-hardlinks "$root" "$work/$1"
  git -C "$work/$1" checkout -q "$(git rev-parse HEAD)"
  (umask "$3" && TZ=$2 CCACHE_DISABLE=1 "$work/$1/packaging/build-deb.sh" >"$work/$1.log" 2>&1) || {
    tail -20 "$work/$1.log" >&2
    fail "building the package" "see the lines above"
  }
  (cd "$work/$1/build/package" && sha256sum ./*.deb) | tee "$work/$1.sums"
}
build first UTC 022
build another/folder Pacific/Auckland 027
if ! cmp -s "$work/first.sums" "$work/another/folder.sums"; then
  need_packages diffoscope-minimal
  diffoscope "$work/first/build/package" "$work/another/folder/build/package" --exclude-directory-metadata=yes \
    --max-report-size 20000 | head -100 || true
  fail "the two packages differ" "see the lines above"
fi
step "Both builds gave the same packages"
