#include "app/WindowPlace.h"

#include <QScreen>
#include <QTemporaryFile>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace
{

constexpr QSize Size(968, 666);

// Beside each other, each 10000 pixels to the right of the one before.
constexpr struct {
    QSize pixels;
    double scale;
} Screens[]{{{1920, 1080}, 1},   {{1366, 768}, 1.25}, {{1366, 768}, 1.5},
            {{1366, 768}, 1.75}, {{1366, 768}, 2},    {{1920, 1080}, 2},
            {{3840, 2160}, 2},   {{3840, 2160}, 3},   {{800, 600}, 1}};

} // namespace

/// Places a window on screens of different size and scale.
class tst_WindowPlace : public QObject
{
    Q_OBJECT

public:
    static void initMain();

private slots:
    void windowFitsTheScreen_data();
    void windowFitsTheScreen();
    void windowReturnsFromOutsideTheScreens();
};

void tst_WindowPlace::initMain()
{
    QStringList screens;
    QByteArrayList scales;
    for (const auto& screen : Screens) {
        screens += u"{\"name\": \"%1\", \"x\": %1, \"y\": 0, \"width\": %2, \"height\": %3}"_s
                       .arg(10000 * screens.size())
                       .arg(screen.pixels.width())
                       .arg(screen.pixels.height());
        scales += QByteArray::number(screen.scale);
    }
    static QTemporaryFile s_settings;
    if (!s_settings.open())
        qFatal("The screens cannot be set");
    s_settings.write(u"{\"screens\": [%1]}"_s.arg(screens.join(u", "_s)).toUtf8());
    s_settings.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + s_settings.fileName().toLocal8Bit());
    qputenv("QT_SCREEN_SCALE_FACTORS", scales.join(';'));
}

void tst_WindowPlace::windowFitsTheScreen_data()
{
    QTest::addColumn<qsizetype>("number");
    QCOMPARE(QGuiApplication::screens().size(), qsizetype(std::size(Screens)));
    for (qsizetype number = 0; number < qsizetype(std::size(Screens)); ++number)
        QTest::addRow("%d pixels at %g", Screens[number].pixels.width(), Screens[number].scale)
            << number;
}

/// Whole, and as large as the screen allows. It is never drawn smaller than the screen's pixels
/// show it at the scale 1, where a screen without room for it has to show the title buttons.
void tst_WindowPlace::windowFitsTheScreen()
{
    QFETCH(qsizetype, number);
    const QScreen* const screen = QGuiApplication::screens().at(number);
    QCOMPARE(screen->devicePixelRatio(), Screens[number].scale);
    QWindow window;
    window.setGeometry(QRect(screen->geometry().topLeft(), Size));
    WindowPlace place;
    place.manage(&window, Size);
    const QSizeF room = screen->size();
    const double fit =
        std::min(1.0, std::min(room.width() / Size.width(), room.height() / Size.height()));
    if (screen->devicePixelRatio() * fit < 1) {
        QCOMPARE(window.size(), Size);
        QCOMPARE(window.geometry().topRight(), screen->geometry().topRight());
        return;
    }
    QCOMPARE(window.width(), int(Size.width() * fit));
    QCOMPARE(window.height(), qRound(Size.height() * place.fit()));
    QVERIFY(screen->geometry().contains(window.geometry()));
}

void tst_WindowPlace::windowReturnsFromOutsideTheScreens()
{
    QWindow window;
    WindowPlace place;
    place.manage(&window, Size);
    for (const QPoint position : {QPoint(-900, -600), QPoint(95000, 100)}) {
        window.setGeometry(QRect(position, Size));
        place.settle();
        QVERIFY(window.screen()->geometry().contains(window.geometry()));
        QCOMPARE(window.size(), Size);
    }
}

QTEST_MAIN(tst_WindowPlace)
#include "tst_WindowPlace.moc"
