#!/usr/bin/env bash
# ./packaging/build-deb.sh [build folder] [cmake argument]...   builds the Debian package and that of its symbols.
#
# The packages and their SHA256SUMS are left in the build folder, by default build/package. Equal sources
# give equal packages: the time stamps in them are that of the last commit, or SOURCE_DATE_EPOCH. For a real
# display pass -DVORN_PORTALHUB_LIBRARY=<library of the display's maker>.
set -euo pipefail
source "$(dirname "$0")/../tools/common.sh"
print_help_if_asked "$@"
folder=${1:-build/package}
shift || true
need_packages "${build_packages[@]}" dpkg-dev file gzip
cd "$root"
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || stat -c %Y CHANGELOG.md)}
export SOURCE_DATE_EPOCH

configure_and_build "$folder" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_INSTALL_PREFIX=/usr \
  -DCMAKE_SKIP_INSTALL_ALL_DEPENDENCY=ON "$@" -- VORNApp
step "Making the package"
rm -f "$folder"/*.deb "$folder"/*.ddeb
# Folders get the permissions that a package needs.
umask 022
(cd "$folder" && cpack -G DEB >cpack.log 2>&1) || {
  tail -20 "$folder/cpack.log" >&2
  fail "cpack" "see $folder/cpack.log"
}

# CPack writes paths of the build into the checksums of the package of symbols, and gives it no documents.
symbols=$(mktemp -d)
trap 'rm -rf "$symbols"' EXIT
dpkg-deb -R "$folder"/vornapp-dbgsym_*.ddeb "$symbols/root"
mkdir -p "$symbols/root/usr/share/doc"
ln -s vornapp "$symbols/root/usr/share/doc/vornapp-dbgsym"
(cd "$symbols/root" && find usr -type f -print0 | LC_ALL=C sort -z | xargs -0 md5sum >DEBIAN/md5sums)
find "$symbols/root" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
name=$(basename "$folder"/vornapp-dbgsym_*.ddeb .ddeb)
dpkg-deb --root-owner-group -b "$symbols/root" "$folder/$name.deb" >>"$folder/cpack.log"
rm "$folder/$name.ddeb"
(cd "$folder" && sha256sum ./*.deb | sed 's|\./||' >SHA256SUMS)
ls -l "$folder"/*.deb
