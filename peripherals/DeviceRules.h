#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/// One rule of the rule file. Only `vorndev` and `filter` are used; the rest is descriptive.
struct DeviceRule {
    QString vorndev; ///< the kind whose list contains the rule
    QString devtype;
    int level = 0;
    QString cls;
    QString proptype;
    QString filter; ///< regular expression

    bool operator==(const DeviceRule&) const = default;
};

/// Rules by kind, each list in the order of the file. Kinds without rules are absent.
using DeviceRuleMap = QMap<QString, QList<DeviceRule>>;

struct ParsedDeviceRules {
    DeviceRuleMap rules;
    const char* error = nullptr; ///< why the whole text is refused; null when it is not
    QStringList cutKinds;        ///< kinds that had more than MaxRulesOfKind rules
};

/// Further rules of a kind are ignored.
inline constexpr qsizetype MaxRulesOfKind = 64;

/// Parses the text of a rule file. Values of a wrong type count as absent.
ParsedDeviceRules parseDeviceRules(const QByteArray& json);

/// Log lines that describe the rules of one kind.
QStringList describeDeviceRules(const QList<DeviceRule>& rules);
