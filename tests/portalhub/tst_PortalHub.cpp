#include "simulator/display/DisplayLink.h"
#include "tests/simulator/ChannelRig.h"

#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;
using simulator::DisplayLink;

/// The shared library in processes that end in different ways.
class tst_PortalHub : public QObject
{
    Q_OBJECT

private slots:
    void libraryEndsWithItsProcess_data();
    void libraryEndsWithItsProcess();
};

void tst_PortalHub::libraryEndsWithItsProcess_data()
{
    QTest::addColumn<QString>("mode");
    for (const char* mode : {"return-from-main", "exit-while-running"})
        QTest::newRow(mode) << QString::fromLatin1(mode);
}

void tst_PortalHub::libraryEndsWithItsProcess()
{
    QFETCH(QString, mode);
    const SocketFolder folder;
    qputenv("VORN_PORTALHUB_SOCKET", folder.name().toLocal8Bit());
    DisplayLink link(folder.name());
    QCOMPARE(link.listen(), QString());
    connect(&link, &DisplayLink::clientConnected, &link, [&link] {
        for (int i = 0; i < 100; ++i)
            link.send(i, "{\"cmd\":1}");
    });
    for (int run = 0; run < 30; ++run) {
        QProcess program;
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QStringLiteral(PORTALHUB_USER), {mode});
        QVERIFY(QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }, Patience));
        const QByteArray output = program.readAll();
        QVERIFY2(program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0,
                 output.constData());
        QCOMPARE(output, QByteArray());
    }
}

QTEST_GUILESS_MAIN(tst_PortalHub)
#include "tst_PortalHub.moc"
