# cmake -P PrintVersion.cmake   prints the version of the sources on standard error.
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/../cmake/VornVersion.cmake")
message("${VORN_VERSION}")
