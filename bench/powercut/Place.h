#pragma once

#include <QByteArray>
#include <QString>

/// The folder that stands for the disk: where its programs keep which file.
class Place
{
public:
    explicit Place(QString root)
        : m_root(std::move(root))
    {
    }

    QString database() const { return in(QStringLiteral("settings/userdata.db")); }
    QString config() const { return in(QStringLiteral("settings/config.ini")); }
    QString registry() const { return in(QStringLiteral("config/VORNApp/registry.ini")); }
    QString log() const { return in(QStringLiteral("log")); }
    QString oldLogs() const { return in(QStringLiteral("log/old")); }
    QString settings() const { return in(QStringLiteral("settings")); }

    /// Makes this process keep its registry values here.
    void use() const { qputenv("XDG_CONFIG_HOME", in(QStringLiteral("config")).toLocal8Bit()); }

private:
    QString in(const QString& path) const { return m_root + u'/' + path; }

    QString m_root;
};
