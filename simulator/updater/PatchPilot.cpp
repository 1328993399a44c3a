#include "simulator/updater/HomeFolder.h"
#include "simulator/updater/Updater.h"

#include <QCoreApplication>

#include <iostream>

using namespace Qt::StringLiterals;

namespace
{

constexpr const char* Help =
    R"(Plays the updater program that lies beside the application.

  PatchPilot                  as the application starts it: in the background (two empty arguments
                              count as none)
  PatchPilot update <program> an upgrade of the program at this path
  PatchPilot --help           this help

In the background it records the installed version in the registry value "version" where there is
none, and the version of the setting "offer" in "newver", and keeps running. An upgrade records the
version in "newver" as the installed one and ends; the next start of the application shows it.

It reads its settings from patchpilot.ini in ${XDG_CONFIG_HOME:-~/.config}/VORNApp, the folder of
registry.ini on Linux. The file may be written at any time, and every key is optional:

  offer=2.0.0.0      the newer version that is found; nothing is offered without it
  installed=1.0.0.0  what "version" becomes where it is missing; the version of this build
  seconds=3          how long an upgrade takes, 0 to 3600
  behaviour=well     how an upgrade goes:
    well             it completes
    never            it never completes and keeps running
    dies             it ends with exit code 1 instead of completing
    late             another program completes it, even if the updater is killed meanwhile
    unkillable       it never completes, and a killed updater is restarted in the background until
                     the behaviour changes

It writes its actions to patchpilot.log in the same folder, one per line: "background", "recorded
1.0.0.0", "found 2.0.0.0", "update <program>", "installed 2.0.0.0", "died", "installing" (by the other
program), "started again", "update <program>: another updater is running", "not understood:
<key>=<value>" (a setting). Only one updater runs at a time in a folder, and it ends when the folder
is removed.

Exit codes: 0; 1 for an upgrade that failed and for another updater that is running; 2 for an error in
the command line.
)";

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    while (!arguments.isEmpty() && arguments.constLast().isEmpty())
        arguments.removeLast();
    if (arguments == QStringList{u"--help"_s} || arguments == QStringList{u"-h"_s}) {
        std::cout << Help;
        return 0;
    }
    const bool isUpgrade = arguments.size() == 2 && arguments.constFirst() == "update"_L1;
    if (!isUpgrade && !arguments.isEmpty()) {
        std::cerr << "Unexpected arguments. See --help.\n";
        return 2;
    }

    simulator::closeStandardStreams();
    simulator::Updater updater;
    const bool isRunning =
        isUpgrade ? updater.upgrade(arguments.constLast()) : updater.runInBackground();
    return isRunning ? QCoreApplication::exec() : 1;
}
