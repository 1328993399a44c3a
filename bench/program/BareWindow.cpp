#include <QApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    const QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/BareWindow.qml")));
    return QApplication::exec();
}
