#!/usr/bin/env bash
# ./tools/windows/make-qt.sh [archive]   builds a Windows Qt from the Qt sources of Debian 13.
#
# Builds in the root of tools/windows/make-root.sh, with its MinGW-w64 and Qt host tools, and packs an
# archive for VORN_WINDOWS_QT. An interrupted run is continued by the next one. It takes about an hour on two
# cores. Modules whose sources are not available are left out with a message; for the graphical effects
# the files of tools/windows/effects stand in. Needs root.
set -euo pipefail
source "$(dirname "$0")/../common.sh"
source "$root/tools/windows/settings.sh"
print_help_if_asked "$@"
archive=${1:-$root/build/qt-mingw-w64.tar.xz}
[ "$(id -u)" -eq 0 ] || fail "the Debian root needs root" "run it again as root or with sudo"

"$root/tools/windows/make-root.sh" "$windows_root"
mount_root
work=/build/qt
log=$windows_root$work/log
mkdir -p "$log" "$windows_root$work/sources"

step "Fetching the sources"
sed 's/^deb /deb-src /' "$windows_root/etc/apt/sources.list" >"$windows_root/etc/apt/sources.list.d/sources.list"
in_root apt-get update -qq
in_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
  dpkg-dev tcl gcc g++ libc6-dev make file >/dev/null
# fetch <source package>   unpacks its source to $work/<source package>; fails when there is none.
fetch() {
  [ -d "$windows_root$work/$1" ] && return
  in_root sh -c "cd $work/sources && apt-get source -qq --download-only --tar-only $1" >"$log/$1.fetch" 2>&1 || {
    printf '%s is left out: its source is not available\n' "$1"
    return 1
  }
  # `set -e` does not apply here because the callers test the result.
  { rm -rf "$windows_root$work/$1.new" && mkdir "$windows_root$work/$1.new" &&
    tar -xf "$windows_root$work/sources/$1"_*.orig.tar.* -C "$windows_root$work/$1.new" --strip-components=1 &&
    mv "$windows_root$work/$1.new" "$windows_root$work/$1"; } ||
    fail "unpacking $1" "see the lines above; the usual cause is a full disk"
}

# done_once <name> <command>...   runs the command unless an earlier run has finished it; prints its time.
done_once() {
  local name=$1
  shift
  [ -e "$windows_root$work/$name.done" ] && return
  step "Building $name"
  TIMEFORMAT="$name took %0R s, and %0U s + %0S s of the processors"
  time "$@" >"$log/$name" 2>&1 || {
    tail -30 "$log/$name" >&2
    fail "building $name" "see $log/$name"
  }
  touch "$windows_root$work/$name.done"
}

host=x86_64-w64-mingw32
write_toolchain() {
  mkdir -p "$windows_root$windows_qt"
  cat >"$windows_root$windows_qt/mingw.cmake" <<EOF
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER $host-gcc-posix)
set(CMAKE_CXX_COMPILER $host-g++-posix)
set(CMAKE_RC_COMPILER $host-windres)
set(CMAKE_FIND_ROOT_PATH /usr/$host $windows_qt)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
EOF
}

build_sqlite() {
  in_root sh -c "cd $work/sqlite3 && ./configure --disable-tcl && make sqlite3.c sqlite3.h &&
    $host-gcc-posix -Os -c -DSQLITE_ENABLE_COLUMN_METADATA sqlite3.c -o sqlite3.o &&
    mkdir -p $windows_qt/lib $windows_qt/include && $host-ar rcs $windows_qt/lib/libsqlite3.a sqlite3.o &&
    cp sqlite3.h src/sqlite3ext.h $windows_qt/include/"
}

build_glog() {
  in_root sh -c "cmake -G Ninja -S $work/google-glog -B $work/google-glog/build -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE=$windows_qt/mingw.cmake -DCMAKE_INSTALL_PREFIX=$windows_qt -DBUILD_SHARED_LIBS=ON \
    -DWITH_GFLAGS=OFF -DWITH_GTEST=OFF -DWITH_UNWIND=OFF -DBUILD_TESTING=OFF &&
    ninja -C $work/google-glog/build install"
}

common_options="-DCMAKE_BUILD_TYPE=MinSizeRel -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF -DQT_GENERATE_SBOM=OFF \
  -DQT_USE_CCACHE=ON -DQT_UNITY_BUILD=ON"
build_base() {
  in_root sh -c "cmake -G Ninja -S $work/qt6-base -B $work/qt6-base/build $common_options \
    -DCMAKE_TOOLCHAIN_FILE=$windows_qt/mingw.cmake -DCMAKE_INSTALL_PREFIX=$windows_qt -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
    -DFEATURE_tabletevent=OFF -DFEATURE_dbus=OFF -DFEATURE_printsupport=OFF \
    -DFEATURE_vulkan=OFF -DFEATURE_sql_odbc=OFF -DFEATURE_openssl=OFF -DFEATURE_schannel=ON \
    -DFEATURE_system_sqlite=ON -DFEATURE_pkg_config=OFF &&
    ninja -C $work/qt6-base/build install"
}

# Only the host program of the shader tools is needed. An empty package replaces the library.
write_shader_tools() {
  local folder=$windows_root$windows_qt/lib/cmake/Qt6ShaderTools
  [ -d "$folder" ] && return
  mkdir -p "$folder"
  cat >"$folder/Qt6ShaderToolsConfig.cmake" <<'EOF'
find_package(Qt6ShaderToolsTools CONFIG REQUIRED
  PATHS /usr/lib/x86_64-linux-gnu/cmake NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
include(/usr/lib/x86_64-linux-gnu/cmake/Qt6ShaderToolsTools/Qt6ShaderToolsMacros.cmake OPTIONAL)
if(NOT TARGET Qt6::ShaderTools)
  add_library(Qt6::ShaderTools INTERFACE IMPORTED)
endif()
set(Qt6ShaderTools_FOUND TRUE)
EOF
  sed 's/Core/ShaderTools/g' "$windows_root$windows_qt/lib/cmake/Qt6Core/Qt6CoreConfigVersion.cmake" \
    >"$folder/Qt6ShaderToolsConfigVersion.cmake"
  cp "$windows_root$windows_qt/lib/cmake/Qt6Core/Qt6CoreConfigVersionImpl.cmake" \
    "$folder/Qt6ShaderToolsConfigVersionImpl.cmake"
}

# leave_out <source package> <folder>...   takes folders out of the build that nothing here needs.
leave_out() {
  local name=$1 folder
  shift
  for folder in "$@"; do
    sed -i -E "s|add_subdirectory\((\.\./tools/)?${folder##*/}( ${folder##*/})?\)|# not built: ${folder##*/}|" \
      "$windows_root$work/$name/${folder%/*}/CMakeLists.txt"
  done
}

# build_module <source package> [option]...
build_module() {
  local name=$1
  shift
  in_root sh -c "$windows_qt/bin/qt-cmake -G Ninja -S $work/$name -B $work/$name/build $common_options $* &&
    ninja -C $work/$name/build install"
}

write_toolchain
fetch sqlite3 && done_once sqlite3 build_sqlite
fetch google-glog && done_once google-glog build_glog
fetch qt6-base && done_once qt6-base build_base
write_shader_tools
# The pages need the Basic style only, and no tools run on Windows. The other styles, the tools, their
# compilers and the features of the debugger would more than double the build time.
if fetch qt6-declarative; then
  leave_out qt6-declarative src/{qmlcompiler,qmldom,qmlaotstats,qmlcachegen,plugins/qmllint,plugins/qmlls} \
    src/{quickwidgets,qmllocalstorage,quicktestutils,quickcontrolstestutils} tools/{qml,qmlscene,qmlpreview,qmleasing}
  done_once qt6-declarative build_module qt6-declarative \
    -DFEATURE_quickcontrols2_{fusion,imagine,material,universal,windows,fluentwinui3}=OFF \
    -DFEATURE_{quick_particles,quick_designer,qml_profiler,qml_preview,qml_jit}=OFF
fi
if fetch qt6-multimedia; then
  # The library behind spatial audio is built even when that feature is off.
  leave_out qt6-multimedia src/resonance-audio
  done_once qt6-multimedia build_module qt6-multimedia \
    -DFEATURE_ffmpeg=OFF -DFEATURE_spatialaudio=OFF -DFEATURE_spatialaudio_quick3d=OFF
fi
fetch qt6-5compat && done_once qt6-5compat build_module qt6-5compat
effects=$windows_root$windows_qt/qml/Qt5Compat/GraphicalEffects
if [ ! -e "$effects/qmldir" ]; then
  mkdir -p "$effects"
  cp "$root"/tools/windows/effects/* "$effects"
fi

step "Packing $archive"
mkdir -p "$(dirname "$archive")"
tar -C "$windows_root$(dirname "$windows_qt")" -cJf "$archive" "$(basename "$windows_qt")"
printf 'Use it with: VORN_WINDOWS_QT=%s ./tools/windows/test.sh\n' "$archive"
