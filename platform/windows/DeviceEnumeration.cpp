#include "platform/DeviceEnumeration.h"

#include <QFile>

#include <qt_windows.h>

#include <devpropdef.h>
#include <setupapi.h>

#include <array>

namespace
{

// Setup classes and property keys as documented for the device installer. They are repeated here
// because the system's headers define them in one source file of a program only.
constexpr GUID MediaClass{
    0x4D36E96C, 0xE325, 0x11CE, {0xBF, 0xC1, 0x08, 0x00, 0x2B, 0xE1, 0x03, 0x18}};
constexpr GUID CameraClass{
    0xCA3E7AB9, 0xB4C3, 0x4AE6, {0x82, 0x51, 0x57, 0x9E, 0xF9, 0x33, 0x89, 0x0F}};
constexpr GUID AudioEndpointClass{
    0xC166523C, 0xFE0C, 0x4A94, {0xA5, 0x86, 0xF1, 0xA8, 0x0C, 0xFB, 0xBF, 0x3E}};
constexpr DEVPROPKEY InstanceIdKey{
    {0x78C34FC8, 0x104A, 0x4ACA, {0x9E, 0xA4, 0x52, 0x4D, 0x52, 0x99, 0x6E, 0x57}}, 256};
constexpr DEVPROPKEY FriendlyNameKey{
    {0xA45C254E, 0xDF1C, 0x4EFD, {0x80, 0x20, 0x67, 0xD1, 0x46, 0xA8, 0x50, 0xE0}}, 14};

const GUID& classGuid(platform::DeviceClass deviceClass)
{
    switch (deviceClass) {
    case platform::DeviceClass::Camera:
        return CameraClass;
    case platform::DeviceClass::AudioEndpoint:
        return AudioEndpointClass;
    case platform::DeviceClass::Media:
        break;
    }
    return MediaClass;
}

QByteArrayView className(platform::DeviceClass deviceClass)
{
    switch (deviceClass) {
    case platform::DeviceClass::Camera:
        return "Camera";
    case platform::DeviceClass::AudioEndpoint:
        return "AudioEndpoint";
    case platform::DeviceClass::Media:
        break;
    }
    return "Media";
}

/// The present devices of one setup class.
class DeviceInfoSet
{
public:
    explicit DeviceInfoSet(const GUID& guid)
        : m_set(SetupDiGetClassDevsW(&guid, nullptr, nullptr, DIGCF_PRESENT | DIGCF_PROFILE))
    {
    }
    ~DeviceInfoSet()
    {
        if (isValid())
            SetupDiDestroyDeviceInfoList(m_set);
    }
    DeviceInfoSet(const DeviceInfoSet&) = delete;
    DeviceInfoSet& operator=(const DeviceInfoSet&) = delete;

    [[nodiscard]] bool isValid() const { return m_set != INVALID_HANDLE_VALUE; }

    [[nodiscard]] bool device(DWORD index, SP_DEVINFO_DATA& data) const
    {
        data = {};
        data.cbSize = sizeof(data);
        return SetupDiEnumDeviceInfo(m_set, index, &data);
    }

    // Empty when the device has no such property.
    [[nodiscard]] QString property(SP_DEVINFO_DATA& data, const DEVPROPKEY& key) const
    {
        constexpr DWORD Size = 1024;
        std::array<wchar_t, Size / sizeof(wchar_t) + 1> buffer{}; // always terminated
        DEVPROPTYPE type = 0;
        if (!SetupDiGetDevicePropertyW(m_set, &data, &key, &type,
                                       reinterpret_cast<BYTE*>(buffer.data()), Size, nullptr, 0))
            return {};
        return QString::fromWCharArray(buffer.data());
    }

private:
    HDEVINFO m_set;
};

/// Reads the devices from a file in place of the system, for tests without hardware. Each line
/// holds the class, the instance id and the friendly name, separated by tabs.
bool readDeviceList(const QString& path, platform::DeviceClass deviceClass,
                    QList<platform::DeviceRecord>& records, quint32& errorCode)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        errorCode = ERROR_FILE_NOT_FOUND;
        return false;
    }
    while (!file.atEnd()) {
        const QList<QByteArray> fields = file.readLine().trimmed().split('\t');
        if (fields.size() == 3 && fields.first() == className(deviceClass))
            records << platform::DeviceRecord{QString::fromUtf8(fields[1]),
                                              QString::fromUtf8(fields[2])};
    }
    errorCode = 0;
    return true;
}

} // namespace

namespace platform
{

bool scanDevices(DeviceClass deviceClass, QList<DeviceRecord>& records, quint32& errorCode)
{
    if (const QString list = qEnvironmentVariable("VORN_DEVICE_LIST"); !list.isEmpty())
        return readDeviceList(list, deviceClass, records, errorCode);
    const DeviceInfoSet devices(classGuid(deviceClass));
    if (!devices.isValid()) {
        errorCode = GetLastError();
        return false;
    }
    SP_DEVINFO_DATA data;
    for (DWORD index = 0; devices.device(index, data); ++index)
        records << DeviceRecord{devices.property(data, InstanceIdKey),
                                devices.property(data, FriendlyNameKey)};
    errorCode = 0;
    return true;
}

std::optional<std::size_t> deviceStamp()
{
    return std::nullopt;
}

} // namespace platform
