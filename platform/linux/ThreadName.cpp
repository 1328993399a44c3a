#include "platform/ThreadName.h"

#include "platform/linux/AlternateStack.h"

#include <string>

#include <pthread.h>

namespace platform
{

void nameCurrentThread(const char* name)
{
    constexpr std::size_t kLimit = 15; // the kernel's; longer names are refused
    pthread_setname_np(pthread_self(), std::string(name).substr(0, kLimit).c_str());
    ensureAlternateStack();
}

} // namespace platform
