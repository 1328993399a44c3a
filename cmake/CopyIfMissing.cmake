# cmake -DFROM=<file> -DTO=<folder> -P CopyIfMissing.cmake
# Copies the sample configuration into the build folder, but keeps a file that the program has changed.
get_filename_component(name "${FROM}" NAME)
if(NOT EXISTS "${TO}/${name}")
  file(COPY "${FROM}" DESTINATION "${TO}")
endif()
