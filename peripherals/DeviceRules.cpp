#include "peripherals/DeviceRules.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace
{

DeviceRule readRule(const QString& kind, const QString& devtype, const QJsonObject& node)
{
    return {kind,
            devtype,
            node["level"_L1].toInt(),
            node["cls"_L1].toString(),
            node["proptype"_L1].toString(),
            node["filter"_L1].toString()};
}

/// False when some rules exceed the maximum and are left out.
bool readKind(const QString& kind, const QJsonArray& entries, QList<DeviceRule>& rules)
{
    for (const auto& value : entries) {
        const QJsonObject entry = value.toObject();
        const QString devtype = entry["devtype"_L1].toString();
        const QJsonArray nodes = entry["nodes"_L1].toArray();
        for (const auto& node : nodes) {
            if (!node.isObject())
                continue;
            if (rules.size() == MaxRulesOfKind)
                return false;
            rules.append(readRule(kind, devtype, node.toObject()));
        }
    }
    return true;
}

} // namespace

ParsedDeviceRules parseDeviceRules(const QByteArray& json)
{
    ParsedDeviceRules parsed;
    const auto document = QJsonDocument::fromJson(json);
    if (document.isNull()) {
        parsed.error = "Failed to parse JSON: JSON document is null or invalid format.";
        return parsed;
    }
    if (!document.isObject()) {
        parsed.error = "Failed to parse JSON: Root element is not an object.";
        return parsed;
    }

    const QJsonObject root = document.object();
    for (const auto& kind : {u"vornmic"_s, u"vorncam"_s, u"vornspeaker"_s}) {
        QList<DeviceRule> rules;
        if (!readKind(kind, root[kind].toArray(), rules))
            parsed.cutKinds.append(kind);
        if (!rules.isEmpty())
            parsed.rules.insert(kind, rules);
    }
    return parsed;
}

QStringList describeDeviceRules(const QList<DeviceRule>& rules)
{
    QStringList lines{QString(20, u'-')};
    for (const auto& rule : rules)
        lines << u"vorndev :"_s + rule.vorndev << u"devtype :"_s + rule.devtype
              << u"proptype:"_s + rule.proptype << u"filter  :"_s + rule.filter;
    lines << QString(40, u'-');
    return lines;
}
