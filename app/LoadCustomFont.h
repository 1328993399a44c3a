#pragma once

#include <QString>

class QQmlContext;

/// Loads an application font and publishes its family to QML as the context property `name`. The
/// default font does not change. False, with a log line, when the font cannot be loaded.
bool LoadCustomFont(QQmlContext* context, const QString& path, const QString& name);

/// Gives lines of text the height that the font's typographic metrics name, for which only some
/// releases of Lato ask. Call it before the first text is made. Without effect before Qt 6.8.
void preferTypographicLineHeight();
