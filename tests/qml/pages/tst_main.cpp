#include "rig/PageRig.h"

#include <QFontDatabase>
#include <QQmlContext>
#include <QQmlEngine>
#include <QtQuickTest>

// Gives the pages what the program gives them, afresh for each test file.
class Setup : public QObject
{
    Q_OBJECT

public slots:
    void qmlEngineAvailable(QQmlEngine* engine)
    {
        // Once for all files: adding a font frees what texts that are on the screen are drawn with.
        static const int font = QFontDatabase::addApplicationFont(QStringLiteral(VORN_LATO_FONT));
        const QString family = QFontDatabase::applicationFontFamilies(font).value(0);
        engine->rootContext()->setContextProperty(u"LatoRegular"_s, family);
        qmlRegisterUncreatableType<CameraControl>("VORNApp", 1, 0, "CameraControl", QString());
        // The fixed UDP port is given back before it is taken again.
        m_rig.reset();
        m_rig.emplace();
        m_rig->publish(engine->rootContext());
    }

    void cleanupTestCase() { m_rig.reset(); }

private:
    std::optional<PageRig> m_rig;
};

QUICK_TEST_MAIN_WITH_SETUP(tst_pages, Setup)

#include "tst_main.moc"
