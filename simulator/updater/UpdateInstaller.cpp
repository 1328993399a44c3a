#include "simulator/updater/HomeFolder.h"
#include "simulator/updater/Installer.h"

#include <QCoreApplication>

#include <iostream>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    const QString job = QCoreApplication::arguments().value(1);
    if (job != "install"_L1 && job != "guard"_L1) {
        std::cerr << "Started by PatchPilot; see PatchPilot --help. Usage: UpdateInstaller "
                     "install|guard\n";
        return 2;
    }

    simulator::closeStandardStreams();
    simulator::Installer installer;
    if (job == "install"_L1)
        installer.installLate();
    else if (!installer.guard())
        return 0;
    return QCoreApplication::exec();
}
