// CMake needs a source file for a library that consists of resources only.
