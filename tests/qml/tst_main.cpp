#include "ScreenReader.h"

#include "app/LoadCustomFont.h"
#include "rig/PageRig.h"

#include <QAccessible>
#include <QFontDatabase>
#include <QQmlContext>
#include <QQmlEngine>
#include <QtQuickTest>

// Publishes to each test file what the program publishes to its pages. Each file gets new objects.
class Setup : public QObject
{
    Q_OBJECT

public slots:
    // With a screen reader, and with texts as the program draws them.
    void applicationAvailable()
    {
        preferTypographicLineHeight();
        actAsScreenReader(this);
        if (!QTest::qWaitFor(&QAccessible::isActive))
            qFatal("Accessibility could not be switched on: the tests need a session bus");
    }

    void qmlEngineAvailable(QQmlEngine* engine)
    {
        // Once for all files: adding a font frees the font engines of texts that are on the screen.
        static const int font = QFontDatabase::addApplicationFont(QStringLiteral(VORN_LATO_FONT));
        const QString family = QFontDatabase::applicationFontFamilies(font).value(0);
        engine->rootContext()->setContextProperty(u"LatoRegular"_s, family);
        qmlRegisterUncreatableType<CameraControl>("VORNApp", 1, 0, "CameraControl", QString());
        // The old rig first: it holds the fixed UDP port.
        m_rig.reset();
        m_rig.emplace();
        m_rig->publish(engine->rootContext());
    }

    void cleanupTestCase() { m_rig.reset(); }

private:
    std::optional<PageRig> m_rig;
};

int main(int argc, char* argv[])
{
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    Setup setup;
    return quick_test_main_with_setup(argc, argv, "tst_qml", QUICK_TEST_SOURCE_DIR, &setup);
}

#include "tst_main.moc"
