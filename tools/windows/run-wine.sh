#!/bin/sh
# run-wine.sh <program> [arguments]   runs a Windows program in the root.
#
# The program keeps its files in the Wine folder that WINEPREFIX names.
qt='Z:\opt\qtwin'
export WINEPREFIX="${WINEPREFIX:-/build/wine}" WINEDEBUG="${WINEDEBUG:--all}"
export WINEDLLOVERRIDES='mscoree,mshtml=' # Wine would offer to download them
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-/build/run}"
# The renderer. Wine removes the variables whose names begin with QT_, such as QT_QUICK_BACKEND.
export QMLSCENE_DEVICE="${QMLSCENE_DEVICE-software}"
export QML_IMPORT_PATH="$qt\\qml"
export WINEPATH="$qt\\bin;Z:\\usr\\lib\\gcc\\x86_64-w64-mingw32\\14-posix;Z:\\usr\\x86_64-w64-mingw32\\lib"
exec wine "$@"
