#include "LogText.h"
#include "app/LogInit.h"
#include "logging/Log.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_LogInit : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void movesEarlierLogsBeforeTheFirstLine();
    void renamesAFileIfItsNameExists();
    void keepsTheGreatestNames();

private:
    [[nodiscard]] QString logPath(const QString& name) const { return m_logDir + u'/' + name; }
    [[nodiscard]] QString backupPath(const QString& name) const { return m_backupDir + name; }
    [[nodiscard]] QStringList backups() const
    {
        return QDir(m_backupDir).entryList(QDir::Files, QDir::Name);
    }
    /// Lines of this run's log, beginning with the function.
    [[nodiscard]] QByteArrayList lines() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_logDir;
    QString m_backupDir;
};

void tst_LogInit::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_logDir = m_folder->filePath(u"log"_s);
    m_backupDir = m_folder->filePath(u"back/log/"_s);
    QVERIFY(QDir().mkpath(m_logDir));
    // Every test sets the log up again in the same process.
    InitLog(m_logDir, m_backupDir, u"App.exe"_s, 5);
    QVERIFY(QDir(m_backupDir).exists());
    QVERIFY(LogText::files(m_logDir).isEmpty());
}

QByteArrayList tst_LogInit::lines() const
{
    QByteArrayList result;
    for (const auto& line : LogText::allBodies(m_logDir).trimmed().split('\n')) {
        if (line.startsWith("[INFO] ["))
            result << line.mid(line.lastIndexOf('[')); // no message here holds a bracket
    }
    return result;
}

void tst_LogInit::movesEarlierLogsBeforeTheFirstLine()
{
    const auto name = u"App.exe20250518-101112.7.log"_s;
    QVERIFY(LogText::make(logPath(name)));
    QVERIFY(LogText::make(logPath(u"Other20250518-101112.7.log"_s)));
    InitLog(m_logDir, m_backupDir, u"App.exe"_s, 5);

    QCOMPARE(backups(), QStringList{name});
    QVERIFY(QFile::exists(logPath(u"Other20250518-101112.7.log"_s)));
    QCOMPARE(lines(), QByteArrayList{"[MoveLogFile]Moved file:" + logPath(name).toUtf8() +
                                     " to:" + backupPath(name).toUtf8()});
}

void tst_LogInit::renamesAFileIfItsNameExists()
{
    // Both have the same second name, so that only one of them can be moved.
    const QStringList names{u"App.exe20250518-101112.7.log"_s, u"App.exe20250518-101112.8.log"_s};
    for (const auto& name : names) {
        QVERIFY(LogText::make(logPath(name), "new\n"));
        QVERIFY(LogText::make(backupPath(name), "old"));
    }
    MoveLogFile(u"App.exe*.log"_s, m_logDir, m_backupDir);
    QCOMPARE(LogText::read(backupPath(u"App_x.log"_s)), "new\n");
    const qsizetype left = QFile::exists(logPath(names[0])) ? 0 : 1;
    for (qsizetype i = 0; i < 2; ++i) {
        QCOMPARE(LogText::read(backupPath(names[i])), "old");
        const auto path = logPath(names[i]).toUtf8();
        QCOMPARE(QFile::exists(logPath(names[i])), i == left);
        const auto moved = "[MoveLogFile]Moved file with backup name:" + path +
                           " to:" + backupPath(u"App_x.log"_s).toUtf8();
        const auto failed = "[MoveLogFile]Failed to move file:" + path + " Error:";
        QVERIFY(lines().join('\n').contains(i == left ? failed : moved));
    }
}

void tst_LogInit::keepsTheGreatestNames()
{
    QStringList names;
    for (int day = 17; day >= 11; --day) {
        names.prepend(u"App.exe202505%1-101112.7.log"_s.arg(day));
        QVERIFY(LogText::make(backupPath(names.first()))); // the oldest name is written last
    }
    QVERIFY(LogText::make(backupPath(u"App_x.log"_s)));
    ClearBackLog(u"App.exe*.log"_s, 9, m_backupDir);
    QCOMPARE(backups().size(), 8);
    // A file that a wrong clock has stamped in the future counts as the oldest.
    QVERIFY(LogText::make(backupPath(u"App.exe20990101-101112.7.log"_s)));
    ClearBackLog(u"App.exe*.log"_s, 7, m_backupDir);
    QCOMPARE(backups(), names + QStringList{u"App_x.log"_s});
    ClearBackLog(u"App.exe*.log"_s, 5, m_backupDir);
    QCOMPARE(backups(), names.last(5) + QStringList{u"App_x.log"_s});
    QCOMPARE(
        lines().sliced(1),
        (QByteArrayList{"[ClearBackLog]Removed old log file:" + backupPath(names[0]).toUtf8(),
                        "[ClearBackLog]Removed old log file:" + backupPath(names[1]).toUtf8()}));
}

QTEST_GUILESS_MAIN(tst_LogInit)

#include "tst_LogInit.moc"
