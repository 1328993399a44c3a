#pragma once

#include <QString>

class QQmlContext;

/// Loads an application font and publishes its family to QML as the context property `name`. The
/// default font does not change. False, with a log line, when the font cannot be loaded.
bool LoadCustomFont(QQmlContext* context, const QString& path, const QString& name);
