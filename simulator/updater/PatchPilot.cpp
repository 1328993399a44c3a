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
none, and in "newver" the version that it is told to offer, and stays. An upgrade makes the version in
"newver" the installed one and ends; the next start of the application shows it.

It takes its orders from patchpilot.ini, which lies where registry.ini does on Linux, in
${XDG_CONFIG_HOME:-~/.config}/VORNApp, and may be written at any time. Every key may be left out:

  offer=2.0.0.0      the newer version that is found; nothing is offered without it
  installed=1.0.0.0  what "version" becomes where it is missing; the version of this build
  seconds=3          how long an upgrade takes, 0 to 3600
  behaviour=well     how an upgrade goes:
    well             it completes
    never            it never completes, and stays
    dies             it ends with exit code 1 when it should have completed
    late             it completes though it is ended meanwhile, by another program
    unkillable       it never completes, and each updater that is ended is started again, in the
                     background too, until the behaviour is another

What it does stands in patchpilot.log beside it, a line each: "background", "recorded 1.0.0.0", "found
2.0.0.0", "update <program>", "installed 2.0.0.0", "died", "installing" (by the other program),
"started again", "update <program>: another updater is running", "not understood: <key>=<value>" (an
order). Only one runs at a time in one such folder, and it ends when the folder is removed.

Exit codes: 0; 1 for an upgrade that failed and for another updater that is running; 2 for a mistake in
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

    simulator::leaveStandardStreams();
    simulator::Updater updater;
    const bool isRunning =
        isUpgrade ? updater.upgrade(arguments.constLast()) : updater.runInBackground();
    return isRunning ? QCoreApplication::exec() : 1;
}
