#include "portalhub/SocketName.h"
#include "simulator/Simulator.h"
#include "simulator/script/StdinReader.h"

#include <QCommandLineParser>
#include <QGuiApplication>

#include <iostream>

using namespace Qt::StringLiterals;
using simulator::Simulator;

namespace
{

const QString Description =
    uR"(Plays a meeting-room display for the program, over the socket of the channel library, and on
request the account service, the display's microphone, camera and speaker, and its screen.

It listens on the socket, prints each event as one JSON object per line
("event" names it: listening, client-connected, client-disconnected, message, sent,
malformed-line, display, camera, camera-command, account-listening, account-request, devices,
video, setup, pointer, button, command, failed and others) and takes commands from standard input
and from a scenario file, one per line.
Lines beginning with # are comments.

What the display sends:
  when it connects, and to a program that connects later:
    message 0 (isReady 1, or 2 in first-run mode), message 1 (volume), message 6 (source)
  when its state is changed by a command, while it is connected:
    message 1, 6, 11 (version), 13 (auto framing), 15 (smart framing) or 21 (camera)
  when the program asks (type 0), with type 1 under the sequence number of the question:
    11: version; 14: auto framing, as message 13; 16: smart framing, as message 15; 21: camera
  when the program commands (type 2), unless "ack off": the same message with type 3, and then
    1: takes the volume;  9, 10: selects BYOD or the room meeting and reports message 6;
    13, 15: takes the framing;  18, 19: records the camera command;
    22: starts the first-run set-up, with message 0 (isReady 2) if it was not in that mode
  12 (type 0) starts BYOD: BYOD is selected and message 6 reported.
While the display is not connected it ignores every message.

A scenario and standard input run side by side. An expectation of a scenario that is not met ends
the simulator with exit code 1. A scenario that ends without "quit" leaves the simulator running.
Exit codes: 0, 1 for a failure, 2 for an error in the command line or the scenario, or the code
that "quit" names.)"_s;

} // namespace

int main(int argc, char* argv[])
{
    // The display's screen is drawn into shared memory only.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(Description);
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Shows this help."_s);
    const QCommandLineOption scenario(u"scenario"_s, u"Runs the commands of a file."_s, u"file"_s);
    const QCommandLineOption socket(
        u"socket"_s,
        u"Listens on this socket instead of the one that VORN_PORTALHUB_SOCKET names or the "
        "default, vorn-portalhub in XDG_RUNTIME_DIR or /tmp."_s,
        u"name"_s);
    const QCommandLineOption sysfs(u"sysfs"_s,
                                   u"Keeps a tree of the display's devices in this folder, as the "
                                   "command \"devices root\" does."_s,
                                   u"folder"_s);
    const QCommandLineOption noStdin(u"no-stdin"_s, u"Reads no commands from standard input."_s);
    parser.addOptions({help, scenario, socket, sysfs, noStdin});

    const bool parsed = parser.parse(QCoreApplication::arguments());
    if (!parsed || !parser.positionalArguments().isEmpty()) {
        const QString reason = parsed ? u"Unexpected argument."_s : parser.errorText();
        std::cerr << reason.toStdString() << " See --help.\n";
        return Simulator::ExitBadUsage;
    }

    Simulator display(parser.isSet(socket) ? parser.value(socket) : channel::socketName(),
                      std::cout, std::cerr);
    if (parser.isSet(help)) {
        std::cout << (parser.helpText() + display.commandHelp()).toStdString();
        return 0;
    }
    if (parser.isSet(scenario) && !display.loadScenario(parser.value(scenario)))
        return Simulator::ExitBadUsage;
    if (parser.isSet(sysfs) && !display.openDeviceTree(parser.value(sysfs)))
        return Simulator::ExitFailed;
    if (!display.listen())
        return Simulator::ExitFailed;

    QObject::connect(&display, &Simulator::finished, &app,
                     [](int exitCode) { QCoreApplication::exit(exitCode); });
    std::unique_ptr<simulator::StdinReader> input;
    if (!parser.isSet(noStdin)) {
        input = std::make_unique<simulator::StdinReader>();
        QObject::connect(
            input.get(), &simulator::StdinReader::lineRead, &display,
            [&display](const QByteArray& line) { display.enterCommand(QString::fromUtf8(line)); });
    }
    return QCoreApplication::exec();
}
