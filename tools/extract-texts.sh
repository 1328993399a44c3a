#!/usr/bin/env bash
# ./tools/extract-texts.sh [file.ts]   collects every text that the user sees, for a translator.
#
# An existing file keeps its translations; a new one is made for the language in its name, as in
# VORNApp_de.ts. Without a name: build/VORNApp.ts.
set -euo pipefail
source "$(dirname "$0")/common.sh"
need_packages qt6-l10n-tools
cd "$root"
mkdir -p build
/usr/lib/qt6/bin/lupdate -locations none -no-obsolete \
  $(git ls-files 'qml/*.qml' 'account/*.cpp' 'account/*.h' 'app/*.cpp' 'app/*.h') -ts "${1:-build/VORNApp.ts}"
