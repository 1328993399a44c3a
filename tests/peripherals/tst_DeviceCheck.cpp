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

const DeviceRecord DisplayMic{uR"(USB\VID_FFF0&PID_4B41\K4V0001)"_s, u"VORN K4V Microphone"_s};
const DeviceRecord DisplayCam{uR"(USB\VID_FFF0&PID_4B42\K4V0001)"_s, u"VORN K4V Camera"_s};
const DeviceRecord DisplaySpk{uR"(USB\VID_FFF0&PID_4B43\K4V0001)"_s, u"VORN K4V Speaker"_s};

/// A PC whose devices come and go, its check, and the statuses that the check sets.
class Rig : private LocalDeviceStatus
{
public:
    explicit Rig(DeviceCheck::Stamp stamp = {},
                 std::chrono::nanoseconds budget = std::chrono::seconds(10))
        : check(
              [this](DeviceClass deviceClass, QList<DeviceRecord>& records, quint32& errorCode) {
                  errorCode = failing.value(deviceClass);
                  if (errorCode == 0)
                      records += devices.value(deviceClass);
                  return errorCode == 0;
              },
              std::move(stamp), budget)
    {
    }

    QString write(const QByteArray& json) const
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(json) != json.size())
            qFatal("cannot write the rule file");
        return path;
    }

    bool readSample() { return check.ReadJsonConfig(QStringLiteral(VORN_SAMPLE_CONFIG)); }

    /// The statuses of microphone, camera and speaker after one more round.
    QString round()
    {
        check.checkDevices(*this);
        return statuses();
    }
    QString statuses() const { return u"%1 %2 %3"_s.arg(mic).arg(cam).arg(spk); }

    QMap<DeviceClass, QList<DeviceRecord>> devices{
        {DeviceClass::Media,
         {{uR"(HDAUDIO\FUNC_01&VEN_10EC&DEV_0256\4&1C)"_s, u"High Definition Audio"_s},
          {uR"(HDAUDIO\FUNC_01&VEN_8086&DEV_281F\4&2B)"_s, u"Display Audio [HDMI 1]"_s}}},
        {DeviceClass::Camera,
         {{uR"(USB\VID_1234&PID_00C5&MI_00\6&1F2E3D4C&0&0000)"_s, u"Integrated Camera"_s}}},
        {DeviceClass::AudioEndpoint,
         {{uR"(SWD\MMDEVAPI\{0.0.0.00000000}.{1F2E})"_s, u"Speakers (High Definition Audio)"_s}}}};
    QMap<DeviceClass, quint32> failing;
    QTemporaryDir folder;
    QString path = folder.filePath(u"config.json"_s);
    DeviceCheck check;
    int mic = -1; // as long as the status was not set
    int cam = -1;
    int spk = -1;
    int calls = 0;

private:
    void setVornMicStatus(int status) override { set(mic, status); }
    void setVornCamStatus(int status) override { set(cam, status); }
    void setVornSpkStatus(int status) override { set(spk, status); }
    void set(int& member, int status)
    {
        member = status;
        ++calls;
    }
};

QByteArray oneRule(const QByteArray& kind, const QByteArray& filter)
{
    return "{\"" + kind + "\":[{\"devtype\":\"usb\",\"nodes\":[{\"filter\":\"" + filter + "\"}]}]}";
}

} // namespace

class tst_DeviceCheck : public QObject
{
    Q_OBJECT

private slots:
    void parsesRules_data();
    void parsesRules();
    void limitsAndDescribesRules();
    void refusesUnusableFiles();
    void followsTheDisplaysDevices();
    void skipsAFailingClass();
    void listsWhenTheStampChanges();
    void spreadsALongComparisonOverRounds();
    void keepsMemoryFlat();
};

void tst_DeviceCheck::parsesRules_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QStringList>("rules"); // in the order of the map
    QTest::addColumn<bool>("refused");

    QTest::newRow("empty") << QByteArray() << QStringList{} << true;
    QTest::newRow("cut off") << QByteArray(R"({"vornmic":[{"nodes":[{"filter":"a)") << QStringList{}
                             << true;
    QTest::newRow("array") << QByteArray("[{}]") << QStringList{} << true;
    QTest::newRow("endless nesting") << QByteArray(200'000, '[') << QStringList{} << true;
    QTest::newRow("all fields")
        << QByteArray(R"({"vornmic":[{"devtype":"usb","nodes":[{"level":3,"cls":"Media",)"
                      R"("proptype":"id","filter":"VID_\\d+"}]}]})")
        << QStringList{u"vornmic,usb,3,Media,id,VID_\\d+"_s} << false;
    QTest::newRow("order of kinds and rules")
        << QByteArray(R"({"other":[{"nodes":[{}]}],"vornspeaker":[{"nodes":[{"filter":"s"}]}],)"
                      R"("vornmic":[{"nodes":[{"filter":"1"},{"filter":"2"}]},)"
                      R"({"devtype":"x","nodes":[{"filter":"3"}]}],"vorncam":[{"nodes":[{}]}]})")
        << QStringList{u"vorncam,,0,,,"_s, u"vornmic,,0,,,1"_s, u"vornmic,,0,,,2"_s,
                       u"vornmic,x,0,,,3"_s, u"vornspeaker,,0,,,s"_s}
        << false;
    QTest::newRow("values of wrong types")
        << QByteArray(R"({"vorncam":{"nodes":[{}]},"vornspeaker":"all","vornmic":[7,null,"a",[{}],)"
                      R"({"nodes":{"filter":"a"}},{"devtype":{},"nodes":[1,[],"b",)"
                      R"({"level":"9","cls":1,"proptype":[],"filter":"c"},)"
                      R"({"level":1e300,"filter":"d"}]}]})")
        << QStringList{u"vornmic,,0,,,c"_s, u"vornmic,,0,,,d"_s} << false;
}

void tst_DeviceCheck::parsesRules()
{
    QFETCH(QByteArray, json);
    QFETCH(bool, refused);
    const auto parsed = parseDeviceRules(json);
    QStringList rules;
    for (const auto& kind : parsed.rules) {
        for (const auto& rule : kind)
            rules += QStringList{rule.vorndev, rule.devtype,  QString::number(rule.level),
                                 rule.cls,     rule.proptype, rule.filter}
                         .join(u',');
    }
    QTEST(rules, "rules");
    QCOMPARE(parsed.error != nullptr, refused);
    QVERIFY(parsed.cutKinds.isEmpty());
}

void tst_DeviceCheck::limitsAndDescribesRules()
{
    const QByteArray nodes = QByteArray("{\"filter\":\"b\"},").repeated(MaxRulesOfKind) + "{}";
    const auto parsed = parseDeviceRules("{\"vornmic\":[{\"nodes\":[" + nodes +
                                         "]}],\"vorncam\":[{\"nodes\":[{\"filter\":\"c\"}]}]}");
    QCOMPARE(parsed.cutKinds, QStringList{u"vornmic"_s});
    QCOMPARE(parsed.rules[u"vornmic"_s].size(), MaxRulesOfKind);
    QCOMPARE(describeDeviceRules(parsed.rules[u"vorncam"_s]).mid(1, 4),
             (QStringList{u"vorndev :vorncam"_s, u"devtype :"_s, u"proptype:"_s, u"filter  :c"_s}));
}

void tst_DeviceCheck::refusesUnusableFiles()
{
    Rig rig;
    LogCapture log;
    const QString prefix = u"E DeviceCheck::ReadJsonConfig "_s;
    // Earlier rules are forgotten.
    QVERIFY(rig.check.ReadJsonConfig(rig.write(oneRule("vornmic", "HDMI"))));
    for (const QString& path : {rig.folder.filePath(u"none.json"_s), rig.folder.path()}) {
        QVERIFY(!rig.check.ReadJsonConfig(path));
        QCOMPARE(log.take().last(), prefix + u"Failed to open config file:"_s + path);
    }
    QVERIFY(rig.check.ReadJsonConfig(rig.write("[]")));
    QCOMPARE(log.take().last(), prefix + u"Failed to parse JSON: Root element is not an object."_s);

    // A file of 200 MB that takes no space on the disk.
    QVERIFY(QFile::resize(rig.write(oneRule("vornmic", "HDMI")), 200'000'000));
    QVERIFY(rig.check.ReadJsonConfig(rig.path));
    const QStringList lines = log.take();
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines[0].contains(u"larger than 262144 bytes"_s));
    QCOMPARE(rig.round(), u"-1 -1 -1"_s);
}

void tst_DeviceCheck::followsTheDisplaysDevices()
{
    Rig rig;
    QVERIFY(rig.readSample());
    QCOMPARE(rig.round(), u"0 0 0"_s);

    // On Linux a sound card and its endpoint have the same id.
    rig.devices[DeviceClass::Media] << DisplayMic;
    rig.devices[DeviceClass::AudioEndpoint] << DisplayMic;
    QCOMPARE(rig.round(), u"1 0 0"_s);
    rig.devices[DeviceClass::AudioEndpoint] << DisplaySpk;
    QCOMPARE(rig.round(), u"1 0 1"_s);
    rig.devices[DeviceClass::Camera].prepend(DisplayCam);
    QCOMPARE(rig.round(), u"1 1 1"_s);

    // A status that was changed elsewhere is corrected, although the devices are the same.
    rig.cam = 0;
    QCOMPARE(rig.round(), u"1 1 1"_s);

    rig.devices.clear();
    QCOMPARE(rig.round(), u"0 0 0"_s);

    // A kind without rules keeps its status.
    rig.mic = 7;
    rig.devices[DeviceClass::Camera] << DisplayCam << DisplayMic;
    QVERIFY(rig.check.ReadJsonConfig(rig.write(oneRule("vorncam", "fff0&pid_4b42"))));
    QCOMPARE(rig.round(), u"7 1 0"_s);
}

void tst_DeviceCheck::skipsAFailingClass()
{
    Rig rig;
    rig.devices[DeviceClass::AudioEndpoint] << DisplaySpk;
    rig.failing[DeviceClass::Camera] = 13;
    QVERIFY(rig.readSample());
    LogCapture log;
    QCOMPARE(rig.round(), u"0 0 1"_s);
    QCOMPARE(log.take(), QStringList{u"E DeviceCheck::scanDevices SetupDiGetClassDevs err:13"_s});

    rig.failing.clear();
    rig.devices[DeviceClass::Camera] << DisplayCam;
    QCOMPARE(rig.round(), u"0 1 1"_s);
    QVERIFY(log.take().isEmpty());
}

void tst_DeviceCheck::listsWhenTheStampChanges()
{
    std::optional<std::size_t> stamp = 1;
    Rig rig([&] { return stamp; });
    QVERIFY(rig.check.ReadJsonConfig(rig.write(oneRule("vorncam", "VORN"))));
    const auto status = [&] {
        rig.round();
        return rig.cam;
    };
    QCOMPARE(status(), 0);
    rig.devices[DeviceClass::Camera] << DisplayCam;
    QCOMPARE(status(), 0);
    stamp = 2;
    QCOMPARE(status(), 1);

    // A change that the stamp does not show is found later.
    rig.devices[DeviceClass::Camera].clear();
    QCOMPARE(status(), 1);
    int rounds = 0;
    while (status() == 1 && rounds < 100)
        ++rounds;
    QVERIFY(rounds < 100);

    // A class that could not be listed is tried again in the next round.
    rig.failing[DeviceClass::Camera] = 5;
    rig.devices[DeviceClass::Camera] << DisplayCam;
    stamp = 3;
    QCOMPARE(status(), 0);
    rig.failing.clear();
    QCOMPARE(status(), 1);
}

void tst_DeviceCheck::spreadsALongComparisonOverRounds()
{
    // Without time, each round compares one device with one filter. A status is set when it is
    // known.
    Rig rig({}, std::chrono::nanoseconds(-1));
    rig.devices[DeviceClass::AudioEndpoint] << DisplayMic;
    QVERIFY(rig.check.ReadJsonConfig(rig.write(oneRule("vornmic", "Microphone"))));
    constexpr int Devices = 5;
    for (int i = 1; i < Devices; ++i)
        QCOMPARE(rig.round(), u"-1 -1 -1"_s);
    QCOMPARE(rig.round(), u"1 -1 -1"_s);

    // While a new list is compared, the last status stays.
    rig.devices[DeviceClass::AudioEndpoint].removeLast();
    for (int i = 1; i < Devices - 1; ++i)
        QCOMPARE(rig.round(), u"1 -1 -1"_s);
    QCOMPARE(rig.round(), u"0 -1 -1"_s);
}

void tst_DeviceCheck::keepsMemoryFlat()
{
#ifndef __GLIBC__
    QSKIP("Only the GNU C library reports how much is allocated.");
#else
    Rig rig;
    rig.devices[DeviceClass::Media]
        << DeviceRecord{DisplayMic.instanceId, QString(300, u'a') + u'!'};
    QVERIFY(rig.check.ReadJsonConfig(
        rig.write(oneRule("vornmic", "(a+)+$\"},{\"filter\":\"4B4(1\"},{\"filter\":\"^.*4B41$"))));
    const auto rounds = [&](int count) {
        for (int i = 0; i < count; ++i) {
            if (i % 10 == 0) // the list changes
                rig.devices[DeviceClass::Camera] = {{u"camera"_s, QString::number(i)}};
            rig.round();
        }
    };
    rounds(1000);
    const std::size_t before = mallinfo2().uordblks;
    rounds(10'000);
    const std::size_t after = mallinfo2().uordblks;
    QCOMPARE(rig.calls, 11'000);
    QVERIFY2(after < before + 4096, qPrintable(u"grew by %1 bytes"_s.arg(after - before)));
#endif
}

QTEST_GUILESS_MAIN(tst_DeviceCheck)
#include "tst_DeviceCheck.moc"
