#include "peripherals/DeviceCheck.h"
#include "platform/DeviceEnumeration.h"
#include "simulator/Simulator.h"
#include "simulator/devices/DeviceTree.h"
#include "tests/simulator/ChannelRig.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <sstream>

using namespace Qt::StringLiterals;
using platform::DeviceClass;
using platform::DeviceRecord;
using simulator::DeviceTree;
using Device = DeviceTree::Device;
using Records = QList<DeviceRecord>;

namespace
{

const DeviceRecord Microphone{uR"(USB\VID_FFF0&PID_4B41\K4V0001)"_s, u"VORN K4V Microphone"_s};
const DeviceRecord Camera{uR"(USB\VID_FFF0&PID_4B42\K4V0001)"_s, u"VORN K4V Camera"_s};
const DeviceRecord Speaker{uR"(USB\VID_FFF0&PID_4B43\K4V0001)"_s, u"VORN K4V Speaker"_s};

Records scan(DeviceClass deviceClass)
{
    Records records;
    quint32 error = 0;
    if (!platform::scanDevices(deviceClass, records, error))
        qFatal("scan failed");
    return records;
}

/// The program's device check with the rules that it ships with.
class Program : public LocalDeviceStatus
{
public:
    Program() { m_check.ReadJsonConfig(QStringLiteral(SHIPPED_CONFIG)); }

    /// One letter for each device that is present: c(amera), m(icrophone), s(peaker).
    QString present()
    {
        m_present.clear();
        m_check.checkDevices(*this);
        return m_present;
    }

    void setVornMicStatus(int status) override { note(status, u'm'); }
    void setVornCamStatus(int status) override { note(status, u'c'); }
    void setVornSpkStatus(int status) override { note(status, u's'); }

private:
    void note(int status, QChar letter)
    {
        if (status == 1)
            m_present += letter;
    }

    DeviceCheck m_check;
    QString m_present;
};

QStringList entriesOf(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

} // namespace

/// The device tree as the program reads it.
class tst_DeviceTree : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void programSeesThePluggedDevices();
    void remainsOfACrashAreRemoved();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_root;
};

void tst_DeviceTree::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_root = QFileInfo(m_folder->path()).canonicalFilePath() + "/sys"_L1;
    qputenv("VORN_SYSFS_ROOT", QFile::encodeName(m_root));
}

void tst_DeviceTree::programSeesThePluggedDevices()
{
    std::ostringstream events;
    std::ostringstream errors;
    {
        simulator::Simulator simulator(m_folder->filePath(u"hub"_s), events, errors);
        Program program;
        simulator.enterCommand(u"plug mic"_s); // fails, there is no tree yet
        QTRY_VERIFY_WITH_TIMEOUT(!errors.str().empty(), Patience);
        QVERIFY(simulator.openDeviceTree(m_root));
        QCOMPARE(program.present(), QString());
        simulator.enterCommand(u"plug all"_s);
        QTRY_COMPARE_WITH_TIMEOUT(program.present(), u"cms"_s, Patience);
        QCOMPARE(scan(DeviceClass::Media), (Records{Microphone, Speaker}));
        QCOMPARE(scan(DeviceClass::AudioEndpoint), (Records{Microphone, Speaker}));
        QCOMPARE(scan(DeviceClass::Camera), Records{Camera});
        simulator.enterCommand(u"unplug camera"_s);
        QTRY_COMPARE_WITH_TIMEOUT(program.present(), u"ms"_s, Patience);
        const QJsonObject event = eventsNamed(u"devices"_s, events).last();
        QCOMPARE(event.value("plugged"_L1).toVariant().toStringList(),
                 (QStringList{u"mic"_s, u"speaker"_s}));
    }
    QVERIFY(!QFileInfo::exists(m_root)); // the simulator created it
}

void tst_DeviceTree::remainsOfACrashAreRemoved()
{
    DeviceTree crashed;
    QCOMPARE(crashed.open(m_root), QString());
    QCOMPARE(crashed.plug(Device::Microphone), QString());
    QCOMPARE(crashed.plug(Device::Camera), QString());
    // The crash happened while it unplugged the camera and built the speaker.
    QVERIFY(QFile::remove(m_root + "/class/video4linux/video0"_L1));
    QVERIFY(QDir().mkpath(m_root + "/.plugging/1-4.3:1.0"_L1));
    QVERIFY(QDir().mkpath(m_root + "/.unplugging/1-4.3:1.0"_L1));

    DeviceTree tree;
    QCOMPARE(tree.open(m_root), QString());
    QCOMPARE(Program().present(), QString());
    QCOMPARE(tree.plug(Device::Camera), QString());
    QCOMPARE(Program().present(), u"c");
    tree.close();
    QCOMPARE(entriesOf(m_root), QStringList());
}

QTEST_GUILESS_MAIN(tst_DeviceTree)
#include "tst_DeviceTree.moc"
