# Sets VORN_VERSION, four numbers, and VORN_REVISION, which names the exact sources.
#
# In a git checkout both come from `git describe`: the last tag v<a>.<b>.<c>.<d> gives the version. In an
# archive that `git archive` made, git has written the same text into cmake/archive-revision.txt. Without
# either the fallback below holds; raise it together with the tag.
set(fallback 1.0.0.0)

file(STRINGS "${CMAKE_CURRENT_LIST_DIR}/archive-revision.txt" VORN_REVISION LIMIT_COUNT 1)
string(STRIP "${VORN_REVISION}" VORN_REVISION)
if(VORN_REVISION MATCHES "Format:")
  set(VORN_REVISION "")
endif()
find_program(VORN_GIT git)
if(VORN_GIT AND EXISTS "${CMAKE_CURRENT_LIST_DIR}/../.git")
  execute_process(
    COMMAND "${VORN_GIT}" describe --tags --match "v[0-9]*" --always --long --dirty --abbrev=12
    WORKING_DIRECTORY "${CMAKE_CURRENT_LIST_DIR}/.."
    OUTPUT_VARIABLE VORN_REVISION
    OUTPUT_STRIP_TRAILING_WHITESPACE
    ERROR_QUIET)
endif()
if(VORN_REVISION MATCHES "^v([0-9]+\\.[0-9]+\\.[0-9]+\\.[0-9]+)")
  set(VORN_VERSION "${CMAKE_MATCH_1}")
else()
  set(VORN_VERSION "${fallback}")
endif()
if(NOT VORN_REVISION)
  set(VORN_REVISION unknown)
endif()
