// The input is a rule file. After a line break, it may end with the name of a device.
#include "peripherals/DeviceRules.h"
#include "fuzz/FuzzSupport.h"
#include "peripherals/DeviceFilter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QByteArray text = fuzz::bytes(data, size);
    const qsizetype end = text.lastIndexOf('\n');
    const QByteArray name = end < 0 ? QByteArray() : text.sliced(end + 1);
    const ParsedDeviceRules parsed = parseDeviceRules(end < 0 ? text : text.first(end));
    fuzz::require(!parsed.error || parsed.rules.isEmpty(), "a refused file has no rules");
    const platform::DeviceRecord device{QString::fromUtf8(name), QString::fromLatin1(name)};
    for (const QList<DeviceRule>& rules : parsed.rules) {
        fuzz::require(rules.size() <= MaxRulesOfKind, "the number of rules is bounded");
        for (const DeviceRule& rule : rules.first(qMin<qsizetype>(rules.size(), 4)))
            DeviceFilter(rule.filter).fits(device);
    }
    return 0;
}
