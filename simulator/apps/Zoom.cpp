#include "platform/Folders.h"
#include "platform/Shortcuts.h"
#include "simulator/updater/HomeFolder.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QScreen>
#include <QStandardPaths>

#include <iostream>

using namespace Qt::StringLiterals;

namespace
{

constexpr const char* Help =
    R"(Plays the meeting program: a window with the title "Zoom".

  zoom            shows the window in the upper right corner of the screen, and adds the line
                  "started <process id>" to ${XDG_DATA_HOME:-~/.local/share}/zoom/started.log
  zoom --install  makes this program the one that a launch of Zoom finds, by a shortcut "Zoom
                  Workplace" in the user's program menu, and ends
  zoom --help     this help

It ends when its window is closed or the folder of started.log is removed.
)";

// The Exec line of a desktop entry, whose value has two layers of escapes.
QByteArray execLine(QString program)
{
    for (const QChar special : u"\\\"`$"_s)
        program.replace(special, u"\\\\"_s + special);
    program.replace(u'%', u"%%"_s);
    return "Exec=\"" + program.toUtf8() + "\"\n";
}

bool makeShortcut(const QString& path)
{
    QFile::remove(path);
    const QString program = QCoreApplication::applicationFilePath();
    if (path.endsWith(".lnk"_L1))
        return QFile::link(program, path);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) &&
           file.write("[Desktop Entry]\nType=Application\nName=Zoom Workplace\n" +
                      execLine(program)) > 0;
}

int install()
{
    const QString folder = platform::startMenuFolder() + "/Zoom"_L1;
    const QString path = folder + u'/' + platform::shortcutFileName(u"Zoom Workplace"_s);
    if (!QDir().mkpath(folder) || !makeShortcut(path)) {
        std::cerr << "cannot write " << path.toStdString() << '\n';
        return 1;
    }
    std::cout << path.toStdString() << '\n';
    return 0;
}

void noteStart(const QString& folder)
{
    QFile file(folder + "/started.log"_L1);
    if (file.open(QIODevice::Append | QIODevice::Text))
        file.write("started " + QByteArray::number(QCoreApplication::applicationPid()) + '\n');
}

int showWindow(int argc, char* argv[])
{
    const QApplication app(argc, argv);
    simulator::closeStandardStreams();
    QLabel window(u"This is where the meeting would be."_s);
    window.setWindowTitle(u"Zoom"_s);
    window.setAlignment(Qt::AlignCenter);
    window.setStyleSheet(u"background: #1F4E8C; color: white; font-size: 16px"_s);
    window.resize(320, 180);
    const QRect screen = window.screen()->availableGeometry();
    window.move(screen.right() - window.width() - 20, screen.top() + 20);
    window.show();
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/zoom"_L1;
    simulator::quitWithFolder(folder, &window);
    noteStart(folder);
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    const QByteArrayView option = argc > 1 ? argv[1] : "";
    if (argc == 1)
        return showWindow(argc, argv);
    if (argc == 2 && option == "--install") {
        const QCoreApplication app(argc, argv);
        return install();
    }
    std::cout << Help;
    return argc == 2 && (option == "--help" || option == "-h") ? 0 : 2;
}
