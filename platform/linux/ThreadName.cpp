#include "platform/ThreadName.h"

#include "platform/linux/AlternateStack.h"

#include <string>

#include <pthread.h>

namespace platform
{

void nameCurrentThread(const char* name)
{
    constexpr std::size_t Limit = 15; // of the kernel, which refuses longer names
    pthread_setname_np(pthread_self(), std::string(name).substr(0, Limit).c_str());
    ensureAlternateStack();
}

} // namespace platform
