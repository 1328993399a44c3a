// glog asks for this header in the spelling that a file system without letter case accepts.
#include <windows.h>
