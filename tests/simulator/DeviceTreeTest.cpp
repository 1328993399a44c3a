#include "simulator/devices/DeviceTree.h"
#include "peripherals/DeviceCheck.h"
#include "platform/DeviceEnumeration.h"
#include "simulator/Simulator.h"
#include "tests/simulator/ChannelRig.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <atomic>
#include <sstream>
#include <thread>

using namespace Qt::StringLiterals;
using platform::DeviceClass;
using platform::DeviceRecord;
using simulator::DeviceTree;
using Device = DeviceTree::Device;

namespace
{

const DeviceRecord Microphone{uR"(USB\VID_FFF0&PID_4B41\K4V0001)"_s, u"VORN K4V Microphone"_s};
const DeviceRecord Camera{uR"(USB\VID_FFF0&PID_4B42\K4V0001)"_s, u"VORN K4V Camera"_s};
const DeviceRecord Speaker{uR"(USB\VID_FFF0&PID_4B43\K4V0001)"_s, u"VORN K4V Speaker"_s};

using Records = QList<DeviceRecord>;

Records scan(DeviceClass deviceClass)
{
    Records records;
    quint32 error = 0;
    if (!platform::scanDevices(deviceClass, records, error))
        qFatal("scan failed");
    return records;
}

/// What the program makes of the devices, by the rules it ships with.
class Program : public LocalDeviceStatus
{
public:
    Program() { m_check.ReadJsonConfig(QStringLiteral(SHIPPED_CONFIG)); }

    /// Letters of the kinds that are there: camera, microphone, speaker.
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

bool plug(DeviceTree& tree, Device device)
{
    const QString error = tree.plug(device);
    if (!error.isEmpty())
        qWarning("%s", qPrintable(error));
    return error.isEmpty();
}

QStringList everythingIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

} // namespace

/// The tree as the program reads it.
class DeviceTreeTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void programSeesWhatIsPlugged();
    void recordsAreThoseOfTheDevices();
    void devicesAppearWhole();
    void leavesNothingBehind();
    void keepsWhatIsNotItsOwn();
    void clearsUpAfterACrash();
    void commandsPlugAndUnplug();
    void saysWhatItCannotDo();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_root;
};

void DeviceTreeTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_root = QFileInfo(m_folder->path()).canonicalFilePath() + "/sys"_L1;
    qputenv("VORN_SYSFS_ROOT", QFile::encodeName(m_root));
}

void DeviceTreeTest::programSeesWhatIsPlugged()
{
    DeviceTree tree;
    QCOMPARE(tree.open(m_root), QString());
    Program program;
    QCOMPARE(program.present(), QString());

    // Any order, each alone and together; once more than needed makes no difference.
    QVERIFY(plug(tree, Device::Speaker) && plug(tree, Device::Speaker));
    QCOMPARE(program.present(), u"s");
    QVERIFY(plug(tree, Device::Microphone));
    QCOMPARE(program.present(), u"ms");
    tree.unplug(Device::Speaker);
    tree.unplug(Device::Speaker);
    QCOMPARE(program.present(), u"m");
    QVERIFY(plug(tree, Device::Camera) && plug(tree, Device::Speaker));
    QCOMPARE(program.present(), u"cms");
    tree.unplug(Device::Microphone);
    tree.unplug(Device::Camera);
    QCOMPARE(program.present(), u"s");
    tree.close();
    QVERIFY(!tree.isOpen());
}

void DeviceTreeTest::recordsAreThoseOfTheDevices()
{
    DeviceTree tree;
    QCOMPARE(tree.open(m_root), QString());
    for (const Device device : {Device::Speaker, Device::Camera, Device::Microphone})
        QVERIFY(plug(tree, device));
    QCOMPARE(scan(DeviceClass::Media), (Records{Microphone, Speaker}));
    QCOMPARE(scan(DeviceClass::AudioEndpoint), (Records{Microphone, Speaker}));
    QCOMPARE(scan(DeviceClass::Camera), Records{Camera});
    for (const Device device : {Device::Speaker, Device::Camera, Device::Microphone})
        tree.unplug(device);
    for (const auto deviceClass :
         {DeviceClass::Media, DeviceClass::AudioEndpoint, DeviceClass::Camera})
        QCOMPARE(scan(deviceClass), Records{});
}

void DeviceTreeTest::devicesAppearWhole()
{
    DeviceTree tree;
    QCOMPARE(tree.open(m_root), QString());
    std::atomic_bool done = false;
    std::atomic_bool sawMicrophone = false;
    std::atomic_bool sawSpeaker = false;
    Records wrong;
    std::thread reader([&] {
        while (!done) {
            const Records records = scan(DeviceClass::Media) + scan(DeviceClass::AudioEndpoint);
            for (const DeviceRecord& record : records) {
                if (record == Microphone)
                    sawMicrophone = true;
                else if (record == Speaker)
                    sawSpeaker = true;
                else
                    wrong.append(record);
            }
        }
    });
    const bool first = plug(tree, Device::Microphone) &&
                       QTest::qWaitFor([&] { return sawMicrophone.load(); }, Patience);
    const bool second =
        plug(tree, Device::Speaker) && QTest::qWaitFor([&] { return sawSpeaker.load(); }, Patience);
    done = true;
    reader.join();
    QVERIFY(first && second);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.value(0).instanceId));
}

void DeviceTreeTest::leavesNothingBehind()
{
    {
        DeviceTree tree;
        QCOMPARE(tree.open(m_root), QString());
        QVERIFY(plug(tree, Device::Camera) && plug(tree, Device::Microphone));
    }
    QVERIFY(!QFileInfo::exists(m_root)); // it was not there before

    QVERIFY(QDir().mkpath(m_root));
    DeviceTree tree;
    QCOMPARE(tree.open(m_root), QString());
    QVERIFY(plug(tree, Device::Speaker));
    QCOMPARE(tree.open(m_folder->filePath(u"elsewhere"_s)), QString());
    QVERIFY(QFileInfo::exists(m_root));
    QCOMPARE(everythingIn(m_root), QStringList());
}

void DeviceTreeTest::keepsWhatIsNotItsOwn()
{
    const QString card = m_root + "/class/sound/card1"_L1;
    QVERIFY(QDir().mkpath(card));
    QFile id(card + "/id"_L1);
    QVERIFY(id.open(QIODevice::WriteOnly) && id.write("PCH\n") == 4);
    id.close();
    {
        DeviceTree tree;
        QCOMPARE(tree.open(m_root), QString());
        QVERIFY(plug(tree, Device::Speaker));
        QCOMPARE(scan(DeviceClass::Media), (Records{{card, u"PCH"_s}, Speaker}));
        // The place of the microphone is taken; no part of it may stay.
        QCOMPARE(tree.plug(Device::Microphone),
                 u"cannot make \"VORN K4V Microphone\" in %1"_s.arg(m_root));
        QVERIFY(!tree.isPlugged(Device::Microphone));
        QCOMPARE(scan(DeviceClass::AudioEndpoint), Records{Speaker});
    }
    QCOMPARE(everythingIn(m_root), QStringList{u"class"_s});
    QCOMPARE(scan(DeviceClass::Media), (Records{{card, u"PCH"_s}}));
}

void DeviceTreeTest::clearsUpAfterACrash()
{
    DeviceTree crashed;
    QCOMPARE(crashed.open(m_root), QString());
    QVERIFY(plug(crashed, Device::Microphone) && plug(crashed, Device::Camera));
    // Died while it took the camera away and built the speaker.
    QVERIFY(QFile::remove(m_root + "/class/video4linux/video0"_L1));
    QVERIFY(QDir().mkpath(m_root + "/.plugging/1-4.3:1.0"_L1));
    QVERIFY(QDir().mkpath(m_root + "/.unplugging/1-4.3:1.0"_L1));

    DeviceTree tree;
    QCOMPARE(tree.open(m_root), QString());
    QCOMPARE(Program().present(), QString());
    QVERIFY(plug(tree, Device::Speaker) && plug(tree, Device::Camera));
    QCOMPARE(Program().present(), u"cs");
    tree.close();
    QCOMPARE(everythingIn(m_root), QStringList());
}

void DeviceTreeTest::commandsPlugAndUnplug()
{
    std::ostringstream events;
    std::ostringstream errors;
    {
        simulator::Simulator simulator(m_folder->filePath(u"hub"_s), events, errors);
        Program program;
        QVERIFY(simulator.openDeviceTree(m_root));
        QCOMPARE(program.present(), QString());
        simulator.enterCommand(u"plug all"_s);
        QTRY_COMPARE_WITH_TIMEOUT(program.present(), u"cms"_s, Patience);
        simulator.enterCommand(u"unplug camera"_s);
        QTRY_COMPARE_WITH_TIMEOUT(program.present(), u"ms"_s, Patience);
        simulator.enterCommand(u"devices root "_s + m_folder->filePath(u"with blanks"_s));
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(m_folder->filePath(u"with blanks"_s)), Patience);
        QVERIFY(!QFileInfo::exists(m_root));
    }
    QVERIFY(!QFileInfo::exists(m_folder->filePath(u"with blanks"_s)));
    QCOMPARE(errors.str(), std::string());
    const auto text = QString::fromStdString(events.str());
    const QString all = uR"({"event":"devices","plugged":["mic","camera","speaker"],"root":")"_s;
    const QString two = uR"({"event":"devices","plugged":["mic","speaker"],)"_s;
    QVERIFY(text.contains(all + m_root));
    QVERIFY(text.contains(two));
}

void DeviceTreeTest::saysWhatItCannotDo()
{
    std::ostringstream events;
    std::ostringstream errors;
    simulator::Simulator simulator(m_folder->filePath(u"hub"_s), events, errors);
    const auto complaint = [&](const QString& command) {
        errors.str({});
        simulator.enterCommand(command);
        if (!QTest::qWaitFor([&] { return !errors.str().empty(); }, Patience))
            return QString();
        return QString::fromStdString(errors.str()).trimmed();
    };
    const QString noTree = u"there is no device tree; name its folder with \"devices root\""_s;
    QVERIFY(complaint(u"plug mic"_s).endsWith(noTree));
    QVERIFY(complaint(u"unplug all"_s).endsWith(noTree));
    QVERIFY(complaint(u"plug microphone"_s)
                .contains("must be mic or camera or speaker or all, not \"microphone\""_L1));
    QFile file(m_root);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(complaint(u"devices root "_s + m_root)
                .endsWith(u"cannot write in the folder \"%1\""_s.arg(m_root)));
    QVERIFY(!simulator.openDeviceTree(m_root));
}

QTEST_GUILESS_MAIN(DeviceTreeTest)
#include "DeviceTreeTest.moc"
