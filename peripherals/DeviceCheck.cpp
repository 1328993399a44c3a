#include "peripherals/DeviceCheck.h"

#include "logging/Log.h"
#include "peripherals/DeviceRules.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace
{

/// The devices are listed at least every so many rounds, for changes that the stamp does not show.
constexpr int RoundsPerScan = 20;

using StatusSetter = void (LocalDeviceStatus::*)(int);

StatusSetter statusSetter(const QString& kind)
{
    if (kind == "vornmic"_L1)
        return &LocalDeviceStatus::setVornMicStatus;
    if (kind == "vorncam"_L1)
        return &LocalDeviceStatus::setVornCamStatus;
    return &LocalDeviceStatus::setVornSpkStatus;
}

std::vector<DeviceFilter> makeFilters(const QList<DeviceRule>& rules)
{
    std::vector<DeviceFilter> filters;
    filters.reserve(static_cast<std::size_t>(rules.size()));
    for (const auto& rule : rules)
        filters.emplace_back(rule.filter);
    return filters;
}

} // namespace

DeviceCheck::DeviceCheck()
    : DeviceCheck(platform::scanDevices, platform::deviceStamp)
{
}

DeviceCheck::DeviceCheck(Scan scan, Stamp stamp, std::chrono::nanoseconds budget)
    : m_scan(std::move(scan))
    , m_stamp(std::move(stamp))
    , m_budget(budget)
{
}

bool DeviceCheck::ReadJsonConfig(const QString& path)
{
    constexpr auto Function = "DeviceCheck::ReadJsonConfig";
    m_kinds.clear();

    QFile file(path);
    // Opening a named pipe would block until somebody writes to it.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        Log::error(Function) << "Failed to open config file:" << path;
        return false;
    }
    const QByteArray content = file.read(MaxConfigSize + 1);
    file.close();
    if (content.size() > MaxConfigSize) {
        Log::error(Function) << "config file is larger than " << MaxConfigSize
                             << " bytes and ignored:" << path;
        return true;
    }
    Log::info(Function) << path << '\n' << content;

    const ParsedDeviceRules parsed = parseDeviceRules(content);
    if (parsed.error)
        Log::error(Function) << parsed.error;
    for (const auto& kind : parsed.cutKinds)
        Log::error(Function) << kind << " has more than " << MaxRulesOfKind
                             << " rules, the rest is ignored";
    for (auto it = parsed.rules.cbegin(); it != parsed.rules.cend(); ++it) {
        for (const auto& line : describeDeviceRules(it.value()))
            Log::info(Function) << line;
        m_kinds.push_back({statusSetter(it.key()), makeFilters(it.value())});
    }
    return true;
}

void DeviceCheck::checkDevices(LocalDeviceStatus& status)
{
    if (isScanDue()) {
        if (QList<platform::DeviceRecord> devices = scanDevices(); devices != m_devices) {
            m_devices = std::move(devices);
            for (auto& kind : m_kinds) {
                kind.next = 0;
                kind.found = false;
            }
        }
    }

    const auto deadline = std::chrono::steady_clock::now() + m_budget;
    for (auto& kind : m_kinds) {
        if (!compare(kind, deadline))
            return;
        (status.*kind.setStatus)(kind.found ? 1 : 0);
    }
}

/// Takes the stamp before the scan, so that a change in between is found in the next round.
bool DeviceCheck::isScanDue()
{
    const std::optional<std::size_t> stamp = m_stamp ? m_stamp() : std::nullopt;
    const bool isSame = stamp && stamp == m_lastStamp;
    m_lastStamp = stamp;
    if (isSame && ++m_roundsSinceScan < RoundsPerScan)
        return false;
    m_roundsSinceScan = 0;
    return true;
}

QList<platform::DeviceRecord> DeviceCheck::scanDevices()
{
    using platform::DeviceClass;
    QList<platform::DeviceRecord> devices;
    for (const auto deviceClass :
         {DeviceClass::Media, DeviceClass::Camera, DeviceClass::AudioEndpoint}) {
        quint32 errorCode = 0;
        if (!m_scan(deviceClass, devices, errorCode)) {
            Log::error("DeviceCheck::scanDevices") << "SetupDiGetClassDevs err:" << errorCode;
            m_lastStamp.reset(); // tries again in the next round
        }
    }
    return devices;
}

/// False when the time ran out before the status of the kind was known.
bool DeviceCheck::compare(Kind& kind, std::chrono::steady_clock::time_point deadline) const
{
    const auto pairs = static_cast<std::size_t>(m_devices.size()) * kind.filters.size();
    while (!kind.found && kind.next < pairs) {
        const auto device = static_cast<qsizetype>(kind.next / kind.filters.size());
        kind.found = kind.filters[kind.next % kind.filters.size()].fits(m_devices.at(device));
        ++kind.next;
        if (std::chrono::steady_clock::now() > deadline)
            return kind.found || kind.next == pairs;
    }
    return true;
}
