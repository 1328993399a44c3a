#include "ItemTree.h"

#include "app/LoadCustomFont.h"
#include "app/Translations.h"
#include "rig/PageRig.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDirIterator>
#include <QFontDatabase>
#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickView>
#include <QTextStream>
#include <QTimer>

namespace
{

constexpr int SettleTime = 1200; // pictures, fonts and the slowest animation

QSize parseSize(const QString& text)
{
    const QStringList parts = text.split(u'x');
    return {parts.value(0).toInt(), parts.value(1).toInt()};
}

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        u"Loads a page of the user interface into a window of its own, brings it into a state, "
        "prints its items with their positions in the window and saves a picture of it.\n"
        "JavaScript runs in the page's scope: its properties and functions, the program's context "
        "objects, and `rig`, which stands for the display, the devices and the account service."_s);
    parser.addHelpOption();
    parser.addPositionalArgument(u"page"_s,
                                 u"Name of a file in the folder qml, such as Meetings."_s);
    parser.addOption({u"size"_s, u"Window size; 968x666 unless given."_s, u"WxH"_s, u"968x666"_s});
    parser.addOption(
        {u"run"_s, u"JavaScript to run once the page is there; may repeat."_s, u"script"_s});
    parser.addOption({u"settle"_s, u"Milliseconds to wait before looking."_s, u"time"_s,
                      QString::number(SettleTime)});
    parser.addOption({u"png"_s, u"File for the picture."_s, u"file"_s});
    parser.addOption({u"quiet"_s, u"Print no items."_s});
}

/// The file of a page, wherever it lies in the folder qml; empty when there is none.
QUrl pageFile(const QString& name)
{
    QDirIterator files(QStringLiteral(VORN_QML_DIR), {name + u".qml"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    return files.hasNext() ? QUrl::fromLocalFile(files.next()) : QUrl();
}

/// False, with a message, when one of the scripts fails.
bool runScripts(QQuickView& view, const QStringList& scripts)
{
    for (const QString& script : scripts) {
        QQmlExpression expression(qmlContext(view.rootObject()), view.rootObject(), script);
        expression.evaluate();
        if (expression.hasError()) {
            QTextStream(stderr) << expression.error().toString() << '\n';
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication app(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(app);
    if (parser.positionalArguments().size() != 1)
        parser.showHelp(2);

    Translations translations;
    translations.install(QLocale::system().uiLanguages());
    const int font = QFontDatabase::addApplicationFont(QStringLiteral(VORN_LATO_FONT));
    preferTypographicLineHeight();
    PageRig rig;
    QQuickView view;
    view.rootContext()->setContextProperty(u"LatoRegular"_s,
                                           QFontDatabase::applicationFontFamilies(font).value(0));
    qmlRegisterUncreatableType<CameraControl>("VORNApp", 1, 0, "CameraControl", QString());
    rig.publish(view.rootContext());
    view.setColor(QColor(u"#282828"_s));
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(parseSize(parser.value(u"size"_s)));
    view.setSource(pageFile(parser.positionalArguments().constFirst()));
    if (view.status() != QQuickView::Ready)
        return 1;
    mirrorLayout(view);
    view.show();
    if (!runScripts(view, parser.values(u"run"_s)))
        return 1;

    QTimer::singleShot(parser.value(u"settle"_s).toInt(), &app, [&] {
        const QString picture = parser.value(u"png"_s);
        const bool saved = picture.isEmpty() || view.grabWindow().save(picture);
        if (!parser.isSet(u"quiet"_s)) {
            QTextStream out(stdout);
            printItemTree(view.contentItem(), out);
        }
        QCoreApplication::exit(saved ? 0 : 1);
    });
    return QApplication::exec();
}
