#include "platform/Shortcuts.h"

#include "platform/linux/DesktopEntry.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr std::chrono::seconds Patience{3};

} // namespace

class tst_Shortcuts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void findsTheProgramOfAnExecLine_data();
    void findsTheProgramOfAnExecLine();
    void resolvesNamesThroughPath();
    void reportsUnreadableEntries();
    void findsEntriesOfPackages();

private:
    QString write(const QString& name, const QByteArray& text) const;

    QTemporaryDir m_folder;
};

QString tst_Shortcuts::write(const QString& name, const QByteArray& text) const
{
    const QString path = m_folder.filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? path : QString();
}

void tst_Shortcuts::initTestCase()
{
    qputenv("XDG_DATA_HOME", m_folder.filePath(u"home"_s).toUtf8());
    qputenv("XDG_DATA_DIRS", m_folder.filePath(u"system"_s).toUtf8());
}

void tst_Shortcuts::findsTheProgramOfAnExecLine_data()
{
    QTest::addColumn<QByteArray>("exec");
    QTest::addColumn<QString>("program"); // empty: none
    const auto row = [](const char* exec, const QString& program) {
        QTest::newRow(exec) << QByteArray(exec) << program;
    };
    row("/usr/bin/zoom %U", u"/usr/bin/zoom"_s);
    row("  zoom  ", u"zoom"_s);
    row(R"("/opt/My App/zoom" --url=%u)", u"/opt/My App/zoom"_s);
    row(R"("/opt/a \\"quoted\\" \\$5 \\`app\\`" x)", uR"(/opt/a "quoted" $5 `app`)"_s);
    row(R"("/opt/back\\\\slash")", uR"(/opt/back\slash)"_s);
    row(R"(/opt/with\sblank/zoom)", u"/opt/with"_s);
    row("/opt/100%%/zoom", u"/opt/100%/zoom"_s);
    row("env QT_SCALE=1 LANG=C /usr/bin/zoom %F", u"/usr/bin/zoom"_s);
    row("/usr/bin/env -u DISPLAY --ignore-environment A=b zoom", u"zoom"_s);
    row("env ./a=b/zoom", u"./a=b/zoom"_s);
    row("env A=b", {});
    row(R"("/opt/never closed)", {});
    row(R"("" zoom)", {});
    row("%U", {});
    row(R"(a"b c"d e)", u"ab cd"_s);
    row(R"(a\\ b c)", u"a b"_s);
    row("", {});
}

void tst_Shortcuts::findsTheProgramOfAnExecLine()
{
    QFETCH(QByteArray, exec);
    QFETCH(QString, program);
    const auto found =
        platform::programOfDesktopEntry("[Desktop Entry]\nType=Application\nExec=" + exec + '\n');
    QCOMPARE(found.has_value(), !program.isEmpty());
    QCOMPARE(found.value_or(QString()), program);
}

void tst_Shortcuts::resolvesNamesThroughPath()
{
    const QString program = write(u"bin/vorn-test-zoom"_s, "#!/bin/sh\n");
    QFile::setPermissions(program, QFile::permissions(program) | QFile::ExeOwner);
    qputenv("PATH", qgetenv("PATH") + ':' + m_folder.filePath(u"bin"_s).toUtf8());

    auto result = platform::shortcutTarget(
        write(u"a.desktop"_s, "[Desktop Entry]\nExec=vorn-test-zoom %U\n"), Patience);
    QVERIFY(result.finished);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, program);

    // A program that does not exist is returned unresolved; the caller checks it.
    result = platform::shortcutTarget(
        write(u"b.desktop"_s, "[Desktop Entry]\nExec=vorn-test-nothing\n"), Patience);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, u"vorn-test-nothing"_s);
}

void tst_Shortcuts::reportsUnreadableEntries()
{
    const QString pipe = m_folder.filePath(u"pipe.desktop"_s);
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& path : {m_folder.filePath(u"missing.desktop"_s), m_folder.path(), pipe,
                                write(u"empty.desktop"_s, "")}) {
        const auto result = platform::shortcutTarget(path, Patience);
        QVERIFY(result.finished);
        QVERIFY(result.exitCode != 0);
        QVERIFY(!result.errorOutput.isEmpty());
    }
}

void tst_Shortcuts::findsEntriesOfPackages()
{
    QVERIFY(platform::packagedShortcut({u"One"_s, u"Two"_s}).isEmpty());
    const QString second = write(u"system/applications/Two.desktop"_s, "");
    QCOMPARE(platform::packagedShortcut({u"One"_s, u"Two"_s}), second);
    const QString first = write(u"home/applications/One.desktop"_s, "");
    QCOMPARE(platform::packagedShortcut({u"One"_s, u"Two"_s}), first);
}

QTEST_GUILESS_MAIN(tst_Shortcuts)
#include "tst_Shortcuts.moc"
