#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/// One rule of the rule file. Only `vorndev` and `filter` decide; the rest describes the rule.
struct DeviceRule {
    QString vorndev; ///< the kind it was read under
    QString devtype;
    int level = 0;
    QString cls;
    QString proptype;
    QString filter; ///< regular expression

    bool operator==(const DeviceRule&) const = default;
};

/// Rules by kind, each list in the file's order; a kind without rules is absent.
using DeviceRuleMap = QMap<QString, QList<DeviceRule>>;

struct ParsedDeviceRules {
    DeviceRuleMap rules;
    const char* error = nullptr; ///< why the whole text is refused, else null
    QStringList cutKinds;        ///< kinds of which only the first MaxRulesOfKind rules were taken
};

/// The most rules that are taken of one kind.
inline constexpr qsizetype MaxRulesOfKind = 64;

/// Reads the text of a rule file. Whatever has the wrong type counts as absent.
ParsedDeviceRules parseDeviceRules(const QByteArray& json);

/// One kind's rules as lines for the log.
QStringList describeDeviceRules(const QList<DeviceRule>& rules);
