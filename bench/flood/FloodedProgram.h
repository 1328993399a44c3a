#pragma once

#include "bench/flood/Probe.h"
#include "bench/program/ProgramRun.h"

#include <QByteArray>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTemporaryDir>

#include <functional>
#include <memory>

/// The program with a display whose messages the benchmark writes itself, and the measurements
/// taken of it.
class FloodedProgram
{
public:
    /// Figures of one phase.
    struct Figures {
        double worst = 0;      ///< longest answer of the main thread, in milliseconds
        double percentile = 0; ///< 99th percentile of the answers, in milliseconds
        double resident = 0;   ///< memory at the end, in MB
        double log = 0;        ///< growth of the log files, in MB
    };

    /// Starts the program, whose path is @p program, and waits until it is connected to the
    /// display. With an address of the account service, a user is signed in.
    explicit FloodedProgram(const QString& program, const QString& service = {});

    /// Runs @p flood and measures meanwhile.
    Figures measure(const std::function<void()>& flood);

    /// Sends @p count messages as fast as the program takes them. Waits until all that need a reply
    /// have one, and returns the number of replies.
    int send(int count, const std::function<QByteArray(int)>& message, int expectedReplies);

    /// Runs the event loop until @p isDone returns true, for up to @p patience. Returns its last
    /// value.
    bool waitUntil(const std::function<bool()>& isDone,
                   std::chrono::milliseconds patience = std::chrono::minutes(1));

    /// The value "disable_local_dev" in the registry.
    QByteArray registryValue() const;
    /// Whether a line of the log files contains @p text.
    bool hasLogged(const QByteArray& text) const;
    /// Asks for the window as a second start does, without waiting for the answer.
    void askForWindow() const;
    /// Presses "Start Setup" on the page that shows a display waiting for its first set-up. False
    /// if the monitor window does not open.
    bool startSetUp();
    /// The folder where the program finds the devices of this PC.
    QString deviceRoot() const { return m_home.filePath(QStringLiteral("sys")); }
    /// Ends the program as the tray's "Quit" does.
    bool quit();

private:
    void install(const QString& program, const QString& service);
    QStringList logFiles() const;
    double logMegabytes() const;
    void readReplies();

    QTemporaryDir m_home;
    QLocalServer m_display;
    QLocalSocket* m_channel = nullptr;
    qint64 m_replies = 0;
    QByteArray m_tail; // end of the last bytes read, where a reply may have begun
    std::unique_ptr<ProgramRun> m_run;
    std::unique_ptr<Probe> m_probe;
};
