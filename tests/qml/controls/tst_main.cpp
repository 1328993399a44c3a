#include <QFontDatabase>
#include <QQmlContext>
#include <QQmlEngine>
#include <QtQuickTest>

using namespace Qt::StringLiterals;

// Gives the controls what the program gives them before the first page loads.
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
    }
};

QUICK_TEST_MAIN_WITH_SETUP(tst_controls, Setup)

#include "tst_main.moc"
