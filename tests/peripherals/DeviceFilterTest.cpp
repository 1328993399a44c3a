#include "peripherals/DeviceFilter.h"

#include <QTest>

using namespace Qt::StringLiterals;
using platform::DeviceRecord;

namespace
{

// As Windows and Linux report them.
const DeviceRecord Headset{uR"(USB\VID_FFF0&PID_4B41&MI_00\7&3A2B1C0D&0&0000)"_s,
                           u"VORN K4V Microphone"_s};
const DeviceRecord Webcam{uR"(USB\VID_1234&PID_00C5&MI_00\6&1F2E3D4C&0&0000)"_s,
                          u"Integrated Camera (Front)"_s};
const DeviceRecord Hdmi{uR"(HDAUDIO\FUNC_01&VEN_8086&DEV_281F&SUBSYS_80860101&REV_1000\4&2B)"_s,
                        u"Display Audio [HDMI 1]"_s};
const DeviceRecord Wireless{
    uR"(BTHENUM\{0000110B-0000-1000-8000-00805F9B34FB}_LOCALMFG&0002\7&1)"_s,
    u"Casque sans fil d’Élodie"_s};
const DeviceRecord Endpoint{
    uR"(SWD\MMDEVAPI\{0.0.1.00000000}.{6B1F5C2A-77E1-4C4B-9F3E-0A1B2C3D4E5F})"_s,
    u"Microphone (VORN K4V)"_s};
const DeviceRecord Nameless{u"/sys/devices/pci0000:00/0000:00:1f.3/sound/card0"_s, {}};

QString repeated(const QString& text, int count)
{
    return text.repeated(count);
}

} // namespace

class DeviceFilterTest : public QObject
{
    Q_OBJECT

private slots:
    void fitsIdsAndNames_data();
    void fitsIdsAndNames();
    void givesUpOnEndlessBacktracking_data();
    void givesUpOnEndlessBacktracking();
    void keepsUsefulExpressions();
    void comparesForeignTextAsItStands();
};

void DeviceFilterTest::fitsIdsAndNames_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<DeviceRecord>("device");
    QTest::addColumn<bool>("fits");

    QTest::newRow("part of an id, other case") << u"vid_fff0&pid_4b41"_s << Headset << true;
    QTest::newRow("id by expression") << u"VID_FFF0&PID_4B4[1-3]"_s << Headset << true;
    QTest::newRow("other id") << u"VID_FFF0&PID_4B4[1-3]"_s << Webcam << false;
    QTest::newRow("name, other case") << u"vorn k4v MICROPHONE"_s << Headset << true;
    QTest::newRow("name by expression") << u"^Microphone \\(VORN.*\\)$"_s << Endpoint << true;
    QTest::newRow("id where the name differs") << u"MMDEVAPI.*0\\.0\\.1\\."_s << Endpoint << true;
    QTest::newRow("backslash of an id as an expression") << uR"(USB\\VID_1234)"_s << Webcam << true;
    QTest::newRow("backslash of an id as it stands")
        << uR"(USB\VID_1234&PID_00C5)"_s << Webcam << true;
    QTest::newRow("parentheses as text") << u"Camera (Front)"_s << Webcam << true;
    QTest::newRow("unbalanced parenthesis as text") << u"camera (fr"_s << Webcam << true;
    QTest::newRow("unbalanced parenthesis elsewhere") << u"camera (fr"_s << Headset << false;
    QTest::newRow("two halves that a group would repair") << u"a)|(b"_s << Webcam << false;
    QTest::newRow("quantifier of nothing") << u"*"_s << Webcam << false;
    QTest::newRow("wildcard as text") << u"?hd"_s << Webcam << false;
    QTest::newRow("brackets as text") << u"audio [hdmi 1]"_s << Hdmi << true;
    QTest::newRow("braces as text") << u"MMDEVAPI\\{0.0.1"_s << Endpoint << true;
    QTest::newRow("alternatives") << u"nothing|HDAUDIO"_s << Hdmi << true;
    QTest::newRow("options of its own") << u"(?-i)hdaudio"_s << Hdmi << false;
    QTest::newRow("beyond ASCII, other case") << u"D’ÉLODIE"_s << Wireless << true;
    QTest::newRow("nameless device") << u"sound/card\\d"_s << Nameless << true;
    QTest::newRow("name of a nameless device") << u"VORN"_s << Nameless << false;
    QTest::newRow("empty filter") << QString() << Nameless << true;
    QTest::newRow("too long") << repeated(u"VORN|"_s, 200) << Headset << false;
}

void DeviceFilterTest::fitsIdsAndNames()
{
    QFETCH(QString, filter);
    QFETCH(DeviceRecord, device);
    QTEST(DeviceFilter(filter).fits(device), "fits");
}

void DeviceFilterTest::givesUpOnEndlessBacktracking_data()
{
    QTest::addColumn<QString>("filter");
    QTest::newRow("nested repetition") << u"(a+)+$"_s;
    QTest::newRow("alternatives of the same") << u"(a|aa)+$"_s;
    QTest::newRow("recursion") << u"(a(?R)?a?)+[qz]"_s;
    QTest::newRow("back reference") << u"((a*)\\2)*[qz]"_s;
    QTest::newRow("deep groups") << repeated(u"("_s, 100) + u"a"_s + repeated(u")*"_s, 100) +
                                        u"[qz]"_s;
    QTest::newRow("memory") << repeated(u"()"_s, 200) + u"(a|b|aa)*[qz]"_s;
}

void DeviceFilterTest::givesUpOnEndlessBacktracking()
{
    QFETCH(QString, filter);
    DeviceFilter endless(filter);
    QVERIFY(!endless.isPlainText());
    QVERIFY(!endless.fits({u"1"_s, repeated(u"a"_s, 400) + u'!'}));
    QVERIFY(endless.isPlainText());
    // It goes on as a text.
    QVERIFY(endless.fits({u"1"_s, u"x"_s + filter.toUpper() + u"x"_s}));

    // Options in front cannot lift the limits: there, they are no valid expression.
    QVERIFY(DeviceFilter(u"(*LIMIT_MATCH=4000000000)"_s + filter).isPlainText());
}

void DeviceFilterTest::keepsUsefulExpressions()
{
    const QString longName = repeated(u"USB Audio 7.1 Speaker Array "_s, 18);
    for (const auto& text :
         {u".*VORN.*K4V.*(Mic|Microphone|Array).*"_s, u"^(?!.*HDMI).*VORN.*$"_s,
          u"(?=.*K4V)(?=.*Mic).*"_s, u"^USB\\\\VID_FFF0&PID_4B4[1-3].*$"_s, u"(\\w+\\s)*VORN"_s}) {
        DeviceFilter filter(text);
        QVERIFY(!filter.fits({Endpoint.instanceId, longName}));
        QVERIFY2(!filter.isPlainText(), qPrintable(text));
    }
}

void DeviceFilterTest::comparesForeignTextAsItStands()
{
    // A name with half a character, and one that is cut in the middle of one.
    const QString broken = QString(QChar(0xD800)) + u" VORN K4V"_s;
    const QString cut = repeated(u"x"_s, DeviceFilter::MaxSubjectLength - 1) +
                        QString::fromUcs4(U"\U0001F4F7") + u"VORN"_s;
    DeviceFilter filter(u"VORN.K4V|x$|x.$"_s);
    QVERIFY(filter.fits({{}, broken}));
    QVERIFY(filter.fits({{}, cut}));
    QVERIFY(!filter.isPlainText());
    QVERIFY(!DeviceFilter(QString(QChar(0xD800))).fits({{}, u"VORN"_s}));
    QVERIFY(!DeviceFilter(u"a\0b"_s).fits({u"a"_s, u"b"_s}));
}

QTEST_APPLESS_MAIN(DeviceFilterTest)
#include "DeviceFilterTest.moc"
