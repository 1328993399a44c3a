#!/usr/bin/env bash
# ./tools/update-translations.sh [language...]   takes the texts of the sources into the files of
# translations/, those of all languages unless some are named. A text that is new is marked "unfinished",
# one that is gone is removed. For a language without a file yet, as in pt_PT, it makes one.
set -euo pipefail
source "$(dirname "$0")/common.sh"
need_packages qt6-l10n-tools
cd "$root"

if [ $# -gt 0 ]; then
  files=("${@/%/.ts}")
  files=("${files[@]/#/translations/VORNApp_}")
else
  files=(translations/VORNApp_*.ts)
fi
mapfile -t sources < <(git ls-files 'qml/*.qml' 'account/*.cpp' 'account/*.h' 'app/*.cpp' 'app/*.h')
/usr/lib/qt6/bin/lupdate -silent -I . -locations none -no-obsolete "${sources[@]}" -ts "${files[@]}"
