#pragma once

#include <QString>

class QQmlContext;

/// Loads an application font and gives its family to QML as the context property `name`. The
/// default font stays as it is. False, with a log line, when the font cannot be loaded.
bool LoadCustomFont(QQmlContext* context, const QString& path, const QString& name);
