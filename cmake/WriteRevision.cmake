# cmake -DOUTPUT=<file> -P WriteRevision.cmake
# Writes the source file that tells the program its revision. It runs in each build, and leaves the file
# alone when the revision is the same.
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/VornVersion.cmake")
file(CONFIGURE OUTPUT "${OUTPUT}" CONTENT "#include \"app/Revision.h\"

const char* sourceRevision()
{
    return \"@VORN_REVISION@\";
}
" @ONLY)
