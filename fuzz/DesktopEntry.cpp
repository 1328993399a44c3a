#include "fuzz/FuzzSupport.h"
#include "platform/Shortcuts.h"

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QString s_path = fuzz::temporaryFile(u"entry.desktop"_s);
    fuzz::write(s_path, fuzz::bytes(data, size));
    const platform::ShortcutTarget target = platform::shortcutTarget(s_path, 5s);
    fuzz::require(target.exitCode != 0 || !target.output.isEmpty(), "a target has a name");
    return 0;
}
