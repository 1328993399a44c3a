#include "LogText.h"
#include "app/LogInit.h"
#include "logging/Log.h"

#include <glog/logging.h>

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_LogInit : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void setsFlags();
    void movesEarlierLogsBeforeTheFirstLine();
    void takenNameGetsSuffix();
    void bothNamesTaken();
    void clearingKeepsTheGreatestNames_data();
    void clearingKeepsTheGreatestNames();
    void initKeepsOrTidies_data();
    void initKeepsOrTidies();

private:
    [[nodiscard]] QString logPath(const QString& name) const { return m_logDir + u'/' + name; }
    [[nodiscard]] QString backupPath(const QString& name) const { return m_backupDir + name; }
    [[nodiscard]] QStringList backups() const
    {
        return QDir(m_backupDir).entryList(QDir::Files, QDir::Name);
    }
    /// The lines of this run's log from the function on, without their changing parts.
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
    // Also shows that the log can be set up again within one process.
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

void tst_LogInit::setsFlags()
{
    QCOMPARE(FLAGS_logbufsecs, 0);
    QVERIFY(!FLAGS_logtostderr);
    QVERIFY(FLAGS_alsologtostderr);
    QCOMPARE(FLAGS_max_log_size, 8U);
    QVERIFY(FLAGS_stop_logging_if_full_disk);
    QVERIFY(FLAGS_colorlogtostderr);
    QCOMPARE(QString::fromStdString(FLAGS_log_backup_dir), m_backupDir);
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

void tst_LogInit::takenNameGetsSuffix()
{
    const auto name = u"App.exe20250518-101112.7.log"_s;
    QVERIFY(LogText::make(logPath(name), "new\n"));
    QVERIFY(LogText::make(backupPath(name), "old"));
    MoveLogFile(u"App.exe*.log"_s, m_logDir, m_backupDir);

    QCOMPARE(LogText::read(backupPath(name)), "old");
    QCOMPARE(LogText::read(backupPath(u"App_x.log"_s)), "new\n");
    QCOMPARE(lines(),
             QByteArrayList{"[MoveLogFile]Moved file with backup name:" + logPath(name).toUtf8() +
                            " to:" + backupPath(u"App_x.log"_s).toUtf8()});
}

void tst_LogInit::bothNamesTaken()
{
    const auto name = u"App.exe20250518-101112.7.log"_s;
    QVERIFY(LogText::make(logPath(name), "new\n"));
    QVERIFY(LogText::make(backupPath(name), "old"));
    QVERIFY(LogText::make(backupPath(u"App_x.log"_s)));
    MoveLogFile(u"App.exe*.log"_s, m_logDir, m_backupDir);

    QCOMPARE(LogText::read(logPath(name)), "new\n");
    const auto start = "[MoveLogFile]Failed to move file:" + logPath(name).toUtf8() + " Error:";
    QCOMPARE(lines().size(), 1);
    QVERIFY(lines().constFirst().startsWith(start));
    QVERIFY(lines().constFirst().size() > start.size());
}

void tst_LogInit::clearingKeepsTheGreatestNames_data()
{
    QTest::addColumn<int>("keepCount");
    QTest::addColumn<int>("remaining");
    QTest::newRow("five of seven") << 5 << 5;
    QTest::newRow("more than there are") << 9 << 7;
    QTest::newRow("one") << 1 << 1;
}

void tst_LogInit::clearingKeepsTheGreatestNames()
{
    QFETCH(const int, keepCount);
    QFETCH(const int, remaining);
    QStringList names;
    for (int day = 11; day <= 17; ++day)
        names << u"App.exe202505%1-101112.7.log"_s.arg(day);
    for (qsizetype index = names.size(); index-- > 0;)
        QVERIFY(LogText::make(backupPath(names[index]))); // the oldest name is written last
    QVERIFY(LogText::make(backupPath(u"App_x.log"_s)));
    ClearBackLog(u"App.exe*.log"_s, keepCount, m_backupDir);

    QCOMPARE(backups(), names.last(remaining) + QStringList{u"App_x.log"_s});
    QByteArrayList expected;
    for (const auto& name : names.first(7 - remaining))
        expected << "[ClearBackLog]Removed old log file:" + backupPath(name).toUtf8();
    QCOMPARE(lines(), expected);
}

void tst_LogInit::initKeepsOrTidies_data()
{
    QTest::addColumn<int>("keepCount");
    QTest::addColumn<QStringList>("remaining");
    const QStringList all{u"App.exe1.log"_s, u"App.exe2.log"_s, u"App.exe3.log"_s};
    QTest::newRow("none deleted") << 0 << all;
    QTest::newRow("the moved file counts") << 2 << all.last(2);
}

void tst_LogInit::initKeepsOrTidies()
{
    QFETCH(const int, keepCount);
    QFETCH(const QStringList, remaining);
    QVERIFY(LogText::make(backupPath(u"App.exe1.log"_s)));
    QVERIFY(LogText::make(backupPath(u"App.exe2.log"_s)));
    QVERIFY(LogText::make(logPath(u"App.exe3.log"_s)));
    InitLog(m_logDir, m_backupDir, u"App.exe"_s, keepCount);
    QCOMPARE(backups(), remaining);
}

QTEST_GUILESS_MAIN(tst_LogInit)

#include "tst_loginit.moc"
