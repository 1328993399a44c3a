#pragma once

namespace platform
{

/// Names the calling thread for debuggers and crash reports, and prepares it for being reported
/// when its stack overflows. Linux keeps the first 15 bytes.
void nameCurrentThread(const char* name);

} // namespace platform
