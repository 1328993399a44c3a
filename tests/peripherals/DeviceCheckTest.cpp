#include "peripherals/DeviceCheck.h"
#include "peripherals/DeviceRules.h"
#include "support/LogCapture.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;
using platform::DeviceClass;
using platform::DeviceRecord;

namespace
{

/// -1 until a status is set.
struct Statuses : LocalDeviceStatus {
    int mic = -1;
    int cam = -1;
    int spk = -1;
    int calls = 0;

    void setVornMicStatus(int status) override { set(mic, status); }
    void setVornCamStatus(int status) override { set(cam, status); }
    void setVornSpkStatus(int status) override { set(spk, status); }

    bool are(int wantedMic, int wantedCam, int wantedSpk) const
    {
        return mic == wantedMic && cam == wantedCam && spk == wantedSpk;
    }

private:
    void set(int& member, int status)
    {
        member = status;
        ++calls;
    }
};

/// This PC, with devices to plug in and classes that fail.
class FakePc
{
public:
    DeviceCheck::Scan scan()
    {
        return [this](DeviceClass deviceClass, QList<DeviceRecord>& records, quint32& errorCode) {
            if (failing.contains(deviceClass)) {
                errorCode = failing.value(deviceClass);
                return false;
            }
            records += devices.value(deviceClass);
            return true;
        };
    }

    QMap<DeviceClass, QList<DeviceRecord>> devices{
        {DeviceClass::Media,
         {{uR"(HDAUDIO\FUNC_01&VEN_10EC&DEV_0256\4&1C)"_s, u"High Definition Audio"_s},
          {uR"(HDAUDIO\FUNC_01&VEN_8086&DEV_281F\4&2B)"_s, u"Display Audio [HDMI 1]"_s}}},
        {DeviceClass::Camera,
         {{uR"(USB\VID_1234&PID_00C5&MI_00\6&1F2E3D4C&0&0000)"_s, u"Integrated Camera"_s}}},
        {DeviceClass::AudioEndpoint,
         {{uR"(SWD\MMDEVAPI\{0.0.0.00000000}.{1F2E})"_s, u"Speakers (High Definition Audio)"_s}}}};
    QMap<DeviceClass, quint32> failing;
};

const DeviceRecord DisplayMic{uR"(USB\VID_FFF0&PID_4B41\K4V0001)"_s, u"VORN K4V Microphone"_s};
const DeviceRecord DisplayCam{uR"(USB\VID_FFF0&PID_4B42\K4V0001)"_s, u"VORN K4V Camera"_s};
const DeviceRecord DisplaySpk{uR"(USB\VID_FFF0&PID_4B43\K4V0001)"_s, u"VORN K4V Speaker"_s};

QByteArray oneRule(const QByteArray& kind, const QByteArray& filter)
{
    return "{\"" + kind + "\":[{\"devtype\":\"usb\",\"nodes\":[{\"filter\":\"" + filter + "\"}]}]}";
}

} // namespace

class DeviceCheckTest : public QObject
{
    Q_OBJECT

private slots:
    void parsesRules_data();
    void parsesRules();
    void takesOnlySoManyRules();
    void logsTheRules();
    void refusesUnreadableFiles();
    void followsTheDisplaysDevices();
    void leavesKindsWithoutRulesAlone();
    void skipsAFailingClass();
    void listsWhenTheStampChanges();
    void spreadsALongComparisonOverRounds();
    void keepsMemoryFlat();

private:
    QString writeConfig(const QByteArray& content) const;

    QTemporaryDir m_folder;
};

QString DeviceCheckTest::writeConfig(const QByteArray& content) const
{
    const QString path = m_folder.filePath(u"config.json"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write the rule file");
    return path;
}

void DeviceCheckTest::parsesRules_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QList<DeviceRule>>("rules"); // in the map's order
    QTest::addColumn<bool>("refused");

    using Rules = QList<DeviceRule>;
    const QString mic = u"vornmic"_s;
    QTest::newRow("empty") << QByteArray() << Rules{} << true;
    QTest::newRow("no JSON") << QByteArray("vornmic = all") << Rules{} << true;
    QTest::newRow("cut off") << QByteArray(R"({"vornmic":[{"nodes":[{"filter":"a)") << Rules{}
                             << true;
    QTest::newRow("not UTF-8") << QByteArray("{\"vornmic\":\"\xff\xfe\"") << Rules{} << true;
    QTest::newRow("array") << QByteArray("[{}]") << Rules{} << true;
    QTest::newRow("nested without end") << QByteArray(200'000, '[') << Rules{} << true;
    QTest::newRow("no rules") << QByteArray(R"({"vornmic":[],"vorncam":[{"nodes":[]}]})") << Rules{}
                              << false;
    QTest::newRow("all fields")
        << QByteArray(R"({"vornmic":[{"devtype":"usb","nodes":[{"level":3,"cls":"Media",)"
                      R"("proptype":"id","filter":"VID_\\d+"}]}]})")
        << Rules{{mic, u"usb"_s, 3, u"Media"_s, u"id"_s, u"VID_\\d+"_s}} << false;
    QTest::newRow("order of kinds and rules")
        << QByteArray(R"({"other":[{"nodes":[{}]}],"vornspeaker":[{"nodes":[{"filter":"s"}]}],)"
                      R"("vornmic":[{"nodes":[{"filter":"1"},{"filter":"2"}]},)"
                      R"({"devtype":"x","nodes":[{"filter":"3"}]}],"vorncam":[{"nodes":[{}]}]})")
        << Rules{{u"vorncam"_s, {}, 0, {}, {}, {}},
                 {mic, {}, 0, {}, {}, u"1"_s},
                 {mic, {}, 0, {}, {}, u"2"_s},
                 {mic, u"x"_s, 0, {}, {}, u"3"_s},
                 {u"vornspeaker"_s, {}, 0, {}, {}, u"s"_s}}
        << false;
    QTest::newRow("kinds of other types")
        << QByteArray(R"({"vornmic":{"nodes":[{}]},"vorncam":"all","vornspeaker":null})") << Rules{}
        << false;
    QTest::newRow("values of other types")
        << QByteArray(R"({"vornmic":[7,null,"a",[{}],{"nodes":{"filter":"a"}},{"devtype":{},)"
                      R"("nodes":[1,[],"b",{"level":"9","cls":1,"proptype":[],"filter":"c"},)"
                      R"({"level":1e300,"filter":"d"}]}]})")
        << Rules{{mic, {}, 0, {}, {}, u"c"_s}, {mic, {}, 0, {}, {}, u"d"_s}} << false;
}

void DeviceCheckTest::parsesRules()
{
    QFETCH(QByteArray, json);
    QFETCH(bool, refused);
    const auto parsed = parseDeviceRules(json);
    QList<DeviceRule> rules;
    for (const auto& kindRules : parsed.rules)
        rules += kindRules;
    QTEST(rules, "rules");
    QCOMPARE(parsed.error != nullptr, refused);
    QVERIFY(parsed.cutKinds.isEmpty());
}

void DeviceCheckTest::takesOnlySoManyRules()
{
    QByteArray nodes = "{\"filter\":\"a\"}";
    for (qsizetype i = 0; i < MaxRulesOfKind; ++i)
        nodes += ",{\"filter\":\"b\"}";
    const auto parsed = parseDeviceRules("{\"vornmic\":[{\"nodes\":[" + nodes +
                                         "]}],\"vorncam\":[{\"nodes\":[{\"filter\":\"c\"}]}]}");
    QCOMPARE(parsed.cutKinds, QStringList{u"vornmic"_s});
    QCOMPARE(parsed.rules[u"vornmic"_s].size(), MaxRulesOfKind);
    QCOMPARE(parsed.rules[u"vorncam"_s].size(), 1);
}

void DeviceCheckTest::logsTheRules()
{
    FakePc pc;
    DeviceCheck check(pc.scan());
    const QByteArray json = oneRule("vorncam", "K4V");
    const QString path = writeConfig(json);
    LogCapture log;
    QVERIFY(check.ReadJsonConfig(path));

    QStringList records = log.take();
    const QString prefix = u"I DeviceCheck::ReadJsonConfig "_s;
    QCOMPARE(records.takeFirst(), prefix + path + u'\n' + QString::fromUtf8(json));
    const QString shorter = records.takeFirst();
    const QString longer = records.takeLast();
    QCOMPARE(records, (QStringList{prefix + u"vorndev :vorncam"_s, prefix + u"devtype :usb"_s,
                                   prefix + u"proptype:"_s, prefix + u"filter  :K4V"_s}));
    QVERIFY(shorter.endsWith(u"----"_s));
    QVERIFY(longer.size() > shorter.size());
}

void DeviceCheckTest::refusesUnreadableFiles()
{
    FakePc pc;
    DeviceCheck check(pc.scan());
    Statuses statuses;
    LogCapture log;
    const QString prefix = u"E DeviceCheck::ReadJsonConfig "_s;

    // Also forgets the rules of before.
    QVERIFY(check.ReadJsonConfig(writeConfig(oneRule("vornmic", "HDMI"))));
    QVERIFY(!check.ReadJsonConfig(m_folder.filePath(u"none.json"_s)));
    QCOMPARE(log.take().last(),
             prefix + u"Failed to open config file:"_s + m_folder.filePath(u"none.json"_s));
    QVERIFY(!check.ReadJsonConfig(m_folder.path()));
    QCOMPARE(log.take(), QStringList{prefix + u"Failed to open config file:"_s + m_folder.path()});

    QVERIFY(check.ReadJsonConfig(writeConfig("[]")));
    QCOMPARE(log.take().last(), prefix + u"Failed to parse JSON: Root element is not an object."_s);

    // A file of 200 MB that takes no room on the disk.
    const QString path = writeConfig(oneRule("vornmic", "HDMI"));
    QVERIFY(QFile::resize(path, 200'000'000));
    QVERIFY(check.ReadJsonConfig(path));
    const QStringList records = log.take();
    QCOMPARE(records.size(), 1);
    QVERIFY(records[0].contains(u"larger than 262144 bytes"_s));

    check.checkDevices(statuses);
    QCOMPARE(statuses.calls, 0);
}

void DeviceCheckTest::followsTheDisplaysDevices()
{
    FakePc pc;
    DeviceCheck check(pc.scan());
    QVERIFY(check.ReadJsonConfig(QStringLiteral(VORN_SAMPLE_CONFIG)));
    Statuses statuses;
    check.checkDevices(statuses);
    QVERIFY(statuses.are(0, 0, 0));

    // As Linux lists them: a sound card and its endpoint share an id.
    pc.devices[DeviceClass::Media] << DisplayMic;
    pc.devices[DeviceClass::AudioEndpoint] << DisplayMic;
    check.checkDevices(statuses);
    QVERIFY(statuses.are(1, 0, 0));
    pc.devices[DeviceClass::AudioEndpoint] << DisplaySpk;
    check.checkDevices(statuses);
    QVERIFY(statuses.are(1, 0, 1));
    pc.devices[DeviceClass::Camera].prepend(DisplayCam);
    check.checkDevices(statuses);
    QVERIFY(statuses.are(1, 1, 1));

    // Nothing changed: all the same, a status that somebody else changed is put right.
    statuses.cam = 0;
    check.checkDevices(statuses);
    QVERIFY(statuses.are(1, 1, 1));

    pc.devices[DeviceClass::Camera].removeFirst();
    pc.devices[DeviceClass::AudioEndpoint].clear();
    check.checkDevices(statuses);
    QVERIFY(statuses.are(1, 0, 0));
    pc.devices.clear();
    check.checkDevices(statuses);
    QVERIFY(statuses.are(0, 0, 0));
}

void DeviceCheckTest::leavesKindsWithoutRulesAlone()
{
    FakePc pc;
    pc.devices[DeviceClass::Media] << DisplayMic << DisplaySpk;
    pc.devices[DeviceClass::Camera] << DisplayCam;
    DeviceCheck check(pc.scan());
    QVERIFY(check.ReadJsonConfig(writeConfig(oneRule("vorncam", "fff0&pid_4b42"))));
    Statuses statuses;
    check.checkDevices(statuses);
    QVERIFY(statuses.are(-1, 1, -1));
}

void DeviceCheckTest::skipsAFailingClass()
{
    FakePc pc;
    pc.devices[DeviceClass::AudioEndpoint] << DisplaySpk;
    pc.failing[DeviceClass::Camera] = 13;
    DeviceCheck check(pc.scan());
    QVERIFY(check.ReadJsonConfig(QStringLiteral(VORN_SAMPLE_CONFIG)));
    Statuses statuses;
    LogCapture log;
    check.checkDevices(statuses);
    QVERIFY(statuses.are(0, 0, 1));
    QCOMPARE(log.take(), QStringList{u"E DeviceCheck::scanDevices SetupDiGetClassDevs err:13"_s});

    pc.failing.clear();
    pc.devices[DeviceClass::Camera] << DisplayCam;
    check.checkDevices(statuses);
    QVERIFY(statuses.are(0, 1, 1));
    QVERIFY(log.take().isEmpty());
}

void DeviceCheckTest::listsWhenTheStampChanges()
{
    FakePc pc;
    std::optional<std::size_t> stamp = 1;
    DeviceCheck check(pc.scan(), [&] { return stamp; });
    QVERIFY(check.ReadJsonConfig(writeConfig(oneRule("vorncam", "VORN"))));
    Statuses statuses;
    const auto status = [&] {
        check.checkDevices(statuses);
        return statuses.cam;
    };
    QCOMPARE(status(), 0);
    pc.devices[DeviceClass::Camera] << DisplayCam;
    QCOMPARE(status(), 0);
    stamp = 2;
    QCOMPARE(status(), 1);

    // What the stamp does not show is found all the same, only later.
    pc.devices[DeviceClass::Camera].clear();
    QCOMPARE(status(), 1);
    int rounds = 0;
    while (status() == 1 && rounds < 100)
        ++rounds;
    QVERIFY(rounds < 100);

    // A class that could not be listed is tried again at once.
    pc.failing[DeviceClass::Camera] = 5;
    pc.devices[DeviceClass::Camera] << DisplayCam;
    stamp = 3;
    LogCapture log;
    QCOMPARE(status(), 0);
    pc.failing.clear();
    QCOMPARE(status(), 1);
    QCOMPARE(log.take().size(), 1);
}

void DeviceCheckTest::spreadsALongComparisonOverRounds()
{
    FakePc pc;
    pc.devices[DeviceClass::AudioEndpoint] << DisplayMic;
    DeviceCheck check(pc.scan(), {}, std::chrono::nanoseconds(-1));
    QVERIFY(check.ReadJsonConfig(writeConfig(oneRule("vornmic", "Microphone"))));
    Statuses statuses;
    // Without time left, each round compares one device with one filter; nothing is set before it
    // is known.
    constexpr int Devices = 5;
    for (int i = 1; i < Devices; ++i) {
        check.checkDevices(statuses);
        QCOMPARE(statuses.calls, 0);
    }
    check.checkDevices(statuses);
    QVERIFY(statuses.are(1, -1, -1));

    // While another list is compared, the last known status stands.
    pc.devices[DeviceClass::AudioEndpoint].removeLast();
    check.checkDevices(statuses);
    QCOMPARE(statuses.calls, 1);
    for (int i = 1; i < Devices; ++i)
        check.checkDevices(statuses);
    QVERIFY(statuses.are(0, -1, -1));
}

void DeviceCheckTest::keepsMemoryFlat()
{
#ifndef __GLIBC__
    QSKIP("only the GNU C library tells how much is allocated");
#else
    const QByteArray json =
        oneRule("vornmic", "(a+)+$\"},{\"filter\":\"4B4(1\"},{\"filter\":\"^.*4B41$");
    FakePc pc;
    pc.devices[DeviceClass::Media]
        << DeviceRecord{DisplayMic.instanceId, QString(300, u'a') + u'!'};
    DeviceCheck check(pc.scan());
    QVERIFY(check.ReadJsonConfig(writeConfig(json)));
    Statuses statuses;
    const auto rounds = [&](int count) {
        for (int i = 0; i < count; ++i) {
            // Every tenth round finds another list.
            if (i % 10 == 0)
                pc.devices[DeviceClass::Camera] = {{u"camera"_s, QString::number(i)}};
            check.checkDevices(statuses);
        }
    };
    rounds(1000);
    const std::size_t before = mallinfo2().uordblks;
    rounds(10'000);
    const std::size_t after = mallinfo2().uordblks;
    QCOMPARE(statuses.calls, 11'000);
    QVERIFY2(after < before + 4096, qPrintable(u"grew by %1 bytes"_s.arg(after - before)));
#endif
}

QTEST_GUILESS_MAIN(DeviceCheckTest)
#include "DeviceCheckTest.moc"
