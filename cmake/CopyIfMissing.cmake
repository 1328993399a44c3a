# cmake -DFROM=<file> -DTO=<folder> -P CopyIfMissing.cmake
# A configuration file that the program has written to is not replaced by the sample.
get_filename_component(name "${FROM}" NAME)
if(NOT EXISTS "${TO}/${name}")
  file(COPY "${FROM}" DESTINATION "${TO}")
endif()
