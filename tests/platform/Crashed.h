#pragma once

#include "rig/HelperProcess.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
#include <QTimeZone>

/// A crash of platform_helper and the dump that it left.
struct Crashed {
    bool ended = false;   ///< by the crash, and in time
    quint32 exitCode = 0; ///< on Windows that of the exception
    QStringList lines;    ///< on standard error
    QString fileName;     ///< of the dump; empty unless there is exactly one
    QByteArray dump;
    bool isNamedCorrectly = false; ///< after the time of the crash and the process
    qint64 thread = 0;             ///< in the dump's name

    /// @param how  arguments of the helper's mode "crash"
    Crashed(const QStringList& how, const QString& folder)
    {
        using namespace Qt::StringLiterals;
        QProcess helper;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"TZ"_s, u"XYZ-5:30"_s); // differs from UTC by more than whole hours
        helper.setProcessEnvironment(environment);
        helper.setWorkingDirectory(folder);
        const auto before = QDateTime::currentDateTimeUtc().addSecs(-1);
        helper.start(HelperProcess::path(u"platform_helper"_s), QStringList{u"crash"_s} + how);
        helper.waitForStarted();
        const qint64 process = helper.processId();
        // Qt takes some of the codes that a crash has on Windows for those of a normal end.
        ended = helper.waitForFinished(60'000) &&
                (helper.exitStatus() == QProcess::CrashExit || helper.exitCode() != 0);
        exitCode = quint32(helper.exitCode());
        lines = QString::fromUtf8(helper.readAllStandardError().replace('\r', "")).split(u'\n');

        const QStringList files = QDir(folder).entryList({u"*.dmp"_s}, QDir::Files);
        fileName = files.size() == 1 ? files.first() : QString();
        QFile file(folder + u'/' + fileName);
        if (file.open(QIODevice::ReadOnly))
            dump = file.readAll();
        static const QRegularExpression s_form(
            u"^platform_helper-(\\d{8}-\\d{6})-(\\d+)-(\\d+)\\.dmp$"_s);
        const auto name = s_form.match(fileName);
        auto time = QDateTime::fromString(name.captured(1), u"yyyyMMdd-HHmmss"_s);
        if (!IsWindows) // which ignores the variable
            time = QDateTime(time.date(), time.time(), QTimeZone(19'800));
        isNamedCorrectly = name.captured(2).toLongLong() == process && time >= before &&
                           time <= QDateTime::currentDateTimeUtc();
        thread = name.captured(3).toLongLong();
    }
};
