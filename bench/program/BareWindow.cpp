#include <QApplication>
#include <QQmlApplicationEngine>

#include <cstdio>

int main(int argc, char** argv)
{
    // Without a console, Qt on Windows would pass the messages to the debugger.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        std::fflush(stderr);
    });
    const QApplication app(argc, argv);
    const QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/BareWindow.qml")));
    return QApplication::exec();
}
