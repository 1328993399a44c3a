#include "simulator/display/DisplayLink.h"
#include "tests/simulator/ChannelRig.h"

#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QTest>

#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;
using simulator::DisplayLink;

/// The simulator's socket file. tst_ChannelClient tests the traffic.
class tst_DisplayLink : public QObject
{
    Q_OBJECT

private slots:
    void runningSimulatorIsNotReplaced();
    void socketOfACrashedSimulatorIsReplaced();
};

void tst_DisplayLink::runningSimulatorIsNotReplaced()
{
    const SocketFolder folder;
    DisplayLink first(folder.name());
    QCOMPARE(first.listen(), QString());
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QVERIFY(!(QFile::permissions(folder.name()) & others));
    DisplayLink second(folder.name());
    QVERIFY(second.listen().contains("already listening"_L1));
    QVERIFY(!second.isListening());
}

void tst_DisplayLink::socketOfACrashedSimulatorIsReplaced()
{
    const SocketFolder folder;
    const QString original = folder.name() + u".original"_s;
    {
        // A second name of the socket file survives the server, as the file of a killed process
        // does.
        DisplayLink link(original);
        QCOMPARE(link.listen(), QString());
        if (!QFileInfo::exists(original))
            QSKIP("A named pipe ends with its process.");
        std::error_code error;
        std::filesystem::create_hard_link(original.toStdString(), folder.name().toStdString(),
                                          error);
        QVERIFY2(!error, error.message().c_str());
    }
    QVERIFY(QFileInfo::exists(folder.name()));

    DisplayLink link(folder.name());
    QCOMPARE(link.listen(), QString());
    QLocalSocket program;
    program.connectToServer(folder.name());
    QVERIFY(program.waitForConnected());
}

QTEST_GUILESS_MAIN(tst_DisplayLink)
#include "tst_DisplayLink.moc"
