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

} // namespace

class tst_DeviceFilter : public QObject
{
    Q_OBJECT

private slots:
    void fitsIdsAndNames_data();
    void fitsIdsAndNames();
    void limitsBacktracking_data();
    void limitsBacktracking();
    void keepsUsefulExpressions();
    void comparesIllFormedText();
};

void tst_DeviceFilter::fitsIdsAndNames_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<DeviceRecord>("device");
    QTest::addColumn<bool>("fits");

    QTest::newRow("part of an id, other case") << u"vid_fff0&pid_4b41"_s << Headset << true;
    QTest::newRow("name by expression") << u"^Microphone \\(VORN.*\\)$"_s << Endpoint << true;
    QTest::newRow("literal backslash") << uR"(USB\VID_1234&PID_00C5)"_s << Webcam << true;
    QTest::newRow("literal parentheses") << u"Camera (Front)"_s << Webcam << true;
    QTest::newRow("unbalanced parenthesis") << u"camera (fr"_s << Webcam << true;
    QTest::newRow("unbalanced, other device") << u"camera (fr"_s << Headset << false;
    QTest::newRow("valid only inside a group") << u"a)|(b"_s << Webcam << false;
    QTest::newRow("quantifier of nothing") << u"*"_s << Webcam << false;
    QTest::newRow("literal brackets") << u"audio [hdmi 1]"_s << Hdmi << true;
    QTest::newRow("options in the filter") << u"(?-i)hdaudio"_s << Hdmi << false;
    QTest::newRow("not ASCII, other case") << u"D’ÉLODIE"_s << Wireless << true;
    QTest::newRow("device without a name") << u"sound/card\\d"_s << Nameless << true;
    QTest::newRow("empty filter") << QString() << Nameless << true;
    QTest::newRow("long") << u"VORX|"_s.repeated(818) + u"VORN"_s << Headset << true;
    QTest::newRow("too long") << u"VORN|"_s.repeated(820) << Headset << false;
}

void tst_DeviceFilter::fitsIdsAndNames()
{
    QFETCH(QString, filter);
    QFETCH(DeviceRecord, device);
    QTEST(DeviceFilter(filter).fits(device), "fits");
}

void tst_DeviceFilter::limitsBacktracking_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("match");
    QTest::newRow("nested repetition") << u"(a+)+$"_s << u"aa"_s;
    QTest::newRow("recursion") << u"(a(?R)?a?)+[qz]"_s << u"aaq"_s;
    QTest::newRow("deep groups") << u"("_s.repeated(100) + u"a"_s + u")*"_s.repeated(100) +
                                        u"[qz]"_s
                                 << u"q"_s;
    QTest::newRow("memory") << u"()"_s.repeated(200) + u"(a|b|aa)*[qz]"_s << u"aq"_s;
}

void tst_DeviceFilter::limitsBacktracking()
{
    QFETCH(QString, filter);
    QFETCH(QString, match);
    DeviceFilter endless(filter);
    const QString exhausting = u"a"_s.repeated(90) + u'!';
    QVERIFY(!endless.fits({u"1"_s, exhausting}));
    // Only that device is not matched, and the filter is still compared literally.
    QVERIFY(endless.fits({u"1"_s, match}));
    QVERIFY(endless.fits({u"1"_s, exhausting + filter.toUpper()}));

    // Options at the start cannot lift the limits: they are no valid expression there.
    QVERIFY(DeviceFilter(u"(*LIMIT_MATCH=4000000000)"_s + filter).isPlainText());
}

void tst_DeviceFilter::keepsUsefulExpressions()
{
    const QString longName = u"USB Audio 7.1 Speaker Array "_s.repeated(18);
    for (const auto& text :
         {u".*VORN.*K4V.*(Mic|Microphone|Array).*"_s, u"^(?!.*HDMI).*VORN.*$"_s,
          u"(?=.*K4V)(?=.*Mic).*"_s, u"^USB\\\\VID_FFF0&PID_4B4[1-3].*$"_s, u"(\\w+\\s)*VORN"_s}) {
        DeviceFilter filter(text);
        QVERIFY(!filter.fits({Endpoint.instanceId, longName}));
        QVERIFY2(!filter.isPlainText(), qPrintable(text));
    }
}

void tst_DeviceFilter::comparesIllFormedText()
{
    // A name with half a character, and one whose cut falls into a character.
    const QString broken = QString(QChar(0xD800)) + u" VORN K4V"_s;
    const QString cut = u"x"_s.repeated(DeviceFilter::MaxSubjectLength - 1) +
                        QString::fromUcs4(U"\U0001F4F7") + u"VORN"_s;
    DeviceFilter filter(u"VORN.K4V|x$|x.$"_s);
    QVERIFY(filter.fits({{}, broken}));
    QVERIFY(filter.fits({{}, cut}));
    QVERIFY(!filter.isPlainText());
    QVERIFY(!DeviceFilter(QString(QChar(0xD800))).fits({{}, u"VORN"_s}));
    QVERIFY(!DeviceFilter(u"a\0b"_s).fits({u"a"_s, u"b"_s}));
}

QTEST_APPLESS_MAIN(tst_DeviceFilter)
#include "tst_DeviceFilter.moc"
