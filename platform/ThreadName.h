#pragma once

namespace platform
{

/// Names the calling thread for debuggers and crash reports, and reserves the memory that a report
/// of its stack overflow needs. Linux keeps the first 15 bytes of the name.
void nameCurrentThread(const char* name);

} // namespace platform
