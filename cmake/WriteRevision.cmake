# cmake -DOUTPUT=<file> -P WriteRevision.cmake
# Writes the source file that holds the revision. It runs in each build and changes the file only when the
# revision has changed.
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/VornVersion.cmake")
file(CONFIGURE OUTPUT "${OUTPUT}" CONTENT "#include \"app/Revision.h\"

const char* sourceRevision()
{
    return \"@VORN_REVISION@\";
}
" @ONLY)
