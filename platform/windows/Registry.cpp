#include "platform/Registry.h"

#include <QStringView>

#include <qt_windows.h>

#include <array>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

struct KeyCloser {
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using UniqueKey = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

struct KeyPlace {
    HKEY root = nullptr;
    std::wstring path;
};

std::optional<KeyPlace> keyPlace(const QString& keyPath)
{
    static const std::array<std::pair<QLatin1StringView, HKEY>, 4> s_roots{{
        {"HKEY_CURRENT_USER\\"_L1, HKEY_CURRENT_USER},
        {"HKEY_LOCAL_MACHINE\\"_L1, HKEY_LOCAL_MACHINE},
        {"HKEY_CLASSES_ROOT\\"_L1, HKEY_CLASSES_ROOT},
        {"HKEY_USERS\\"_L1, HKEY_USERS},
    }};
    for (const auto& [name, root] : s_roots) {
        if (keyPath.startsWith(name))
            return KeyPlace{root, keyPath.sliced(name.size()).toStdWString()};
    }
    return std::nullopt;
}

std::wstring valueName(const QString& name)
{
    return name == QStringView(platform::DefaultValueName) ? std::wstring() : name.toStdWString();
}

struct Value {
    DWORD type = REG_NONE;
    std::vector<wchar_t> data; ///< ends with a zero that does not belong to the value
    DWORD bytes = 0;
};

std::optional<Value> readValue(HKEY key, const std::wstring& name)
{
    Value value;
    LSTATUS status = ERROR_MORE_DATA;
    while (status == ERROR_MORE_DATA) { // another process can replace the value by a longer one
        status = RegQueryValueExW(key, name.c_str(), nullptr, &value.type, nullptr, &value.bytes);
        if (status != ERROR_SUCCESS)
            return std::nullopt;
        value.data.assign(value.bytes / sizeof(wchar_t) + 2, L'\0');
        status = RegQueryValueExW(key, name.c_str(), nullptr, &value.type,
                                  reinterpret_cast<BYTE*>(value.data.data()), &value.bytes);
    }
    if (status != ERROR_SUCCESS)
        return std::nullopt;
    return value;
}

template <typename Number>
QVariant numberOf(const Value& value)
{
    Number number = 0;
    if (value.bytes != sizeof number)
        return {};
    std::memcpy(&number, value.data.data(), sizeof number);
    return QVariant::fromValue(number);
}

} // namespace

namespace platform
{

// QSettings would create the key of a value that it is asked for.
QVariant readRegistry(const QString& keyPath, const QString& name)
{
    const auto place = keyPlace(keyPath);
    HKEY opened = nullptr;
    if (!place ||
        RegOpenKeyExW(place->root, place->path.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS)
        return {};
    const UniqueKey key(opened);
    const auto value = readValue(key.get(), valueName(name));
    if (!value)
        return {};
    switch (value->type) {
    case REG_SZ:
    case REG_EXPAND_SZ:
        return QString::fromWCharArray(value->data.data());
    case REG_DWORD:
        return numberOf<quint32>(*value);
    case REG_QWORD:
        return numberOf<quint64>(*value);
    default:
        return {};
    }
}

bool writeRegistry(const QString& keyPath, const QString& name, const QVariant& value)
{
    const auto place = keyPlace(keyPath);
    HKEY opened = nullptr;
    if (!place || RegCreateKeyExW(place->root, place->path.c_str(), 0, nullptr, 0, KEY_WRITE,
                                  nullptr, &opened, nullptr) != ERROR_SUCCESS)
        return false;
    const UniqueKey key(opened);
    const auto store = [&](DWORD type, const void* data, std::size_t bytes) {
        return RegSetValueExW(key.get(), valueName(name).c_str(), 0, type,
                              static_cast<const BYTE*>(data),
                              static_cast<DWORD>(bytes)) == ERROR_SUCCESS;
    };
    bool stored = false;
    if (value.typeId() == QMetaType::Int) {
        const DWORD number = static_cast<DWORD>(value.toInt());
        stored = store(REG_DWORD, &number, sizeof number);
    } else {
        const std::wstring text = value.toString().toStdWString();
        stored = store(REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    }
    return stored && RegFlushKey(key.get()) == ERROR_SUCCESS;
}

} // namespace platform
