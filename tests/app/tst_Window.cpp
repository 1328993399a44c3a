#include "ProgramRun.h"

#include <csignal>

using namespace Qt::StringLiterals;

namespace
{

constexpr int Patience = 30000;

/// The trimmed output of a command.
QString output(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(Patience);
    return QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
}

QString xdotool(const QStringList& arguments)
{
    return output(u"xdotool"_s, arguments);
}

} // namespace

/// Uses the program's window with the pointer, on a real screen with a window manager and a tray.
class tst_Window : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void hasItsSizeAndIconAndNoFrame();
    void minimises();
    void hidesToTheTrayAndComesBackByDoubleClick();
    void closingByTheSystemHidesToo();
    void secondStartBringsItForward();
    void dragMovesIt_data();
    void dragMovesIt();

private:
    QString mainWindow() const;
    QString trayWindow() const;
    QString geometry() const { return xdotool({u"getwindowgeometry"_s, m_window}); }
    void click(int x, int y) const;
    bool isViewable();
    bool hides();
    QByteArray log();

    std::optional<ProgramHome> m_home;
    std::optional<DisplayEnd> m_display;
    std::unique_ptr<QProcess> m_program;
    QByteArray m_log;
    QString m_window;
};

void tst_Window::init()
{
    m_home.emplace();
    if (QTest::currentDataTag()) // the screen's scale
        m_home->set(u"QT_SCALE_FACTOR"_s, QString::fromLatin1(QTest::currentDataTag()));
    // Trays that embed windows are found without a session bus.
    m_home->set(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nonexistent"_s);
    m_display.emplace(*m_home);
    m_log.clear();
    m_program = m_home->start(u"xcb"_s);
    QVERIFY2(m_display->nextProgram(), log().constData());
    if (!QTest::qWaitFor([this] { return isViewable(); }, Patience))
        QFAIL((log() + output(u"xwininfo"_s, {u"-root"_s, u"-tree"_s}).toUtf8()).constData());
}

void tst_Window::cleanup()
{
    ::kill(static_cast<pid_t>(m_program->processId()), SIGTERM);
    QVERIFY(m_program->waitForFinished(Patience));
    QCOMPARE(m_program->exitCode(), 0);
    // Errors of the pages are logged with their file.
    QByteArrayList errors = log().split('\n');
    errors.removeIf([](const QByteArray& line) { return !line.contains("qrc:/"); });
    QVERIFY2(errors.isEmpty(), errors.join('\n').constData());
}

QByteArray tst_Window::log()
{
    return m_log += m_program->readAll();
}

QString tst_Window::mainWindow() const
{
    return xdotool({u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"^VORNApp$"_s})
        .section(u'\n', 0, 0);
}

/// The small window of the icon, embedded in the tray.
QString tst_Window::trayWindow() const
{
    const QString found = xdotool({u"search"_s, u"--all"_s, u"--onlyvisible"_s, u"--pid"_s,
                                   QString::number(m_program->processId())});
    for (const QString& window : found.split(u'\n', Qt::SkipEmptyParts)) {
        const QString geometry = xdotool({u"getwindowgeometry"_s, u"--shell"_s, window});
        const int width = geometry.section(u"WIDTH="_s, 1).section(u'\n', 0, 0).toInt();
        if (width > 0 && width <= 64)
            return window;
    }
    return {};
}

void tst_Window::click(int x, int y) const
{
    xdotool({u"mousemove"_s, u"--sync"_s, u"--window"_s, m_window, QString::number(x),
             QString::number(y), u"click"_s, u"1"_s});
}

/// A hidden window that is shown again is a new window of the window system.
bool tst_Window::isViewable()
{
    const QString visible = mainWindow();
    if (visible.isEmpty())
        return false;
    m_window = visible;
    return true;
}

/// A search during the closing of a window may find none at all, so two in a row have to find none.
bool tst_Window::hides()
{
    return QTest::qWaitFor([this] { return !isViewable() && !isViewable(); }, Patience);
}

void tst_Window::hasItsSizeAndIconAndNoFrame()
{
    const QString information = output(u"xwininfo"_s, {u"-id"_s, m_window});
    QVERIFY2(information.contains(u"Width: 968"_s), qPrintable(information));
    QVERIFY2(information.contains(u"Height: 666"_s), qPrintable(information));
    const QString extents = output(u"xprop"_s, {u"-id"_s, m_window, u"_NET_FRAME_EXTENTS"_s});
    QVERIFY2(extents.endsWith(u"0, 0, 0, 0"_s), qPrintable(extents));
    for (const auto& size : {u"(16 x 16)"_s, u"(48 x 48)"_s, u"(128 x 128)"_s})
        QTRY_VERIFY2_WITH_TIMEOUT(
            output(u"xprop"_s, {u"-id"_s, m_window, u"_NET_WM_ICON"_s}).contains(size),
            qPrintable(size), Patience);
}

void tst_Window::minimises()
{
    click(968 - 10 - 30 - 8 - 15, 6 + 15);
    QTRY_VERIFY_WITH_TIMEOUT(
        output(u"xprop"_s, {u"-id"_s, m_window, u"WM_STATE"_s}).contains(u"Iconic"_s), Patience);
}

void tst_Window::hidesToTheTrayAndComesBackByDoubleClick()
{
    click(968 - 10 - 15, 6 + 15);
    QVERIFY(hides());
    QTRY_VERIFY_WITH_TIMEOUT(log().contains("[WindowManager::hideToTray]hide to tray"), Patience);

    QTRY_VERIFY_WITH_TIMEOUT(!trayWindow().isEmpty(), Patience);
    const QString icon = trayWindow();
    xdotool(
        {u"mousemove"_s, u"--sync"_s, u"--window"_s, icon, u"10"_s, u"10"_s, u"click"_s, u"1"_s});
    QVERIFY(!isViewable());
    xdotool({u"click"_s, u"--repeat"_s, u"2"_s, u"--delay"_s, u"60"_s, u"1"_s});
    QTRY_VERIFY_WITH_TIMEOUT(log().contains("tray double click"), Patience);
    QTRY_VERIFY_WITH_TIMEOUT(isViewable(), Patience);
}

void tst_Window::closingByTheSystemHidesToo()
{
    // A key pressed before the window has the focus is lost, so it is pressed repeatedly.
    QVERIFY(QTest::qWaitFor(
        [this] {
            xdotool({u"windowactivate"_s, m_window, u"key"_s, u"alt+F4"_s});
            return !isViewable() && !isViewable();
        },
        Patience));
    QTRY_VERIFY_WITH_TIMEOUT(log().contains("[WindowManager::hideToTray]hide to tray"), Patience);
}

void tst_Window::secondStartBringsItForward()
{
    click(968 - 10 - 15, 6 + 15);
    QVERIFY(hides());
    const auto second = m_home->start(u"xcb"_s);
    QVERIFY(second->waitForFinished(Patience));
    QCOMPARE(second->exitCode(), 0);
    QTRY_VERIFY_WITH_TIMEOUT(isViewable(), Patience);
    // It stays on top for one turn of the event loop only.
    QTRY_VERIFY_WITH_TIMEOUT(!output(u"xprop"_s, {u"-id"_s, m_window, u"_NET_WM_STATE"_s})
                                  .contains(u"_NET_WM_STATE_ABOVE"_s),
                             Patience);
}

void tst_Window::dragMovesIt_data()
{
    QTest::addColumn<double>("scale");
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0})
        QTest::newRow(qPrintable(QString::number(scale))) << scale;
}

void tst_Window::dragMovesIt()
{
    QFETCH(double, scale);
    // Whole device-independent pixels at each of the scales.
    xdotool({u"windowmove"_s, u"--sync"_s, m_window, u"120"_s, u"120"_s});
    xdotool({u"mousemove"_s, u"--sync"_s, u"--window"_s, m_window, QString::number(500 * scale),
             QString::number(20 * scale), u"mousedown"_s, u"1"_s, u"mousemove_relative"_s,
             u"--sync"_s, u"60"_s, u"30"_s, u"mousemove_relative"_s, u"--sync"_s, u"60"_s, u"30"_s,
             u"mouseup"_s, u"1"_s});
    QTRY_VERIFY2_WITH_TIMEOUT(geometry().contains(u"Position: 240,180"_s), qPrintable(geometry()),
                              Patience);
}

QTEST_GUILESS_MAIN(tst_Window)
#include "tst_Window.moc"
