#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

/// The content of an INI file in QSettings' format with one value set. Every other line, comments
/// and lines that QSettings does not understand included, stays as it is.
/// @param key  "Section/name", of letters, digits, "_", "-" and "."
[[nodiscard]] QByteArray withIniValue(const QByteArray& content, const QString& key,
                                      const QVariant& value);
