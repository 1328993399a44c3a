# Compiler settings that every target shares, and the function that adds a room.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

find_program(VORN_CCACHE ccache)
if(VORN_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${VORN_CCACHE}")
endif()

add_library(vorn_settings INTERFACE)
target_include_directories(vorn_settings INTERFACE "${CMAKE_CURRENT_SOURCE_DIR}")
target_compile_definitions(vorn_settings INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_NO_CONTEXTLESS_CONNECT
  QT_NO_FOREACH
)
if(MSVC)
  target_compile_options(vorn_settings INTERFACE /W4 /utf-8 /permissive- $<$<BOOL:${VORN_WARNINGS_AS_ERRORS}>:/WX>)
else()
  target_compile_options(vorn_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor $<$<BOOL:${VORN_WARNINGS_AS_ERRORS}>:-Werror>)
endif()

# Releases are the same wherever they are built: they hold no path of the build.
if(NOT MSVC)
  add_compile_options("$<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${CMAKE_BINARY_DIR}=build>"
    "$<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>")
endif()

# Programs without a window do not load the libraries that only the windows of others need.
if(UNIX)
  add_link_options(LINKER:--as-needed)
endif()

# Releases for Linux are hardened as Debian's packages are.
if(UNIX AND NOT VORN_SANITIZE)
  add_compile_options("$<$<NOT:$<CONFIG:Debug>>:-fstack-protector-strong;-Wp,-U_FORTIFY_SOURCE,-D_FORTIFY_SOURCE=2>")
  add_link_options("$<$<NOT:$<CONFIG:Debug>>:LINKER:-z,relro,-z,now>")
endif()

# Applies to every target of the tree, the channel library included. Debug information of level 1 is
# enough for the functions and lines in a report; full debug information takes a quarter of the build time.
if(VORN_SANITIZE)
  add_compile_options(-fsanitize=${VORN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined
    -O1 -g1)
  add_link_options(-fsanitize=${VORN_SANITIZE})
endif()

# vorn_add_room(<name> SOURCES <files> [WINDOWS_SOURCES <files>] [LINUX_SOURCES <files>]
#               [USES <targets>] [PRIVATE_USES <targets>])
# adds the static library vorn_<name> of one room. USES holds the targets that the room's headers include,
# PRIVATE_USES those that only its implementation files include. Together they are all that the room may
# include; tools/check-rooms.py compares them with the sources.
function(vorn_add_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;WINDOWS_SOURCES;LINUX_SOURCES;USES;PRIVATE_USES" ${ARGN})
  add_library(vorn_${name} STATIC ${ROOM_SOURCES})
  if(WIN32)
    target_sources(vorn_${name} PRIVATE ${ROOM_WINDOWS_SOURCES})
  else()
    target_sources(vorn_${name} PRIVATE ${ROOM_LINUX_SOURCES})
  endif()
  set_target_properties(vorn_${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(vorn_${name} PUBLIC vorn_settings ${ROOM_USES} PRIVATE ${ROOM_PRIVATE_USES})
endfunction()
