#!/usr/bin/env bash
# ./tools/extract-texts.sh [file.ts]   collects the texts of the user interface for translators.
#
# An existing file keeps its translations. The language of a new file is taken from its name, for example
# VORNApp_de.ts. The default is build/VORNApp.ts.
set -euo pipefail
source "$(dirname "$0")/common.sh"
need_packages qt6-l10n-tools
cd "$root"
mkdir -p build
mapfile -t sources < <(git ls-files 'qml/*.qml' 'account/*.cpp' 'account/*.h' 'app/*.cpp' 'app/*.h')
/usr/lib/qt6/bin/lupdate -locations none -no-obsolete "${sources[@]}" -ts "${1:-build/VORNApp.ts}"
