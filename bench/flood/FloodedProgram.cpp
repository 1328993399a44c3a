#include "bench/flood/FloodedProgram.h"

#include "bench/WaitUntil.h"
#include "persistence/DBManager.h"
#include "persistence/Keys.h"

#include <QDir>
#include <QDirIterator>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr qint64 MaxUnwritten = qint64{1} * 1024 * 1024;

QString runTool(const QStringList& arguments)
{
    QProcess tool;
    tool.start(u"xdotool"_s, arguments);
    tool.waitForFinished();
    return QString::fromLocal8Bit(tool.readAllStandardOutput()).trimmed();
}

QString visibleWindow(const QString& title)
{
    return runTool({u"search"_s, u"--onlyvisible"_s, u"--name"_s, title});
}

} // namespace

FloodedProgram::FloodedProgram(const QString& program, const QString& service)
{
    install(program, service);
    m_display.listen(m_home.filePath(u"portalhub"_s));
    QObject::connect(&m_display, &QLocalServer::newConnection, &m_display, [this] {
        m_channel = m_display.nextPendingConnection();
        QObject::connect(m_channel, &QLocalSocket::readyRead, m_channel, [this] { readReplies(); });
    });
    m_run = std::make_unique<ProgramRun>(m_home.filePath(u"app/VORNApp"_s), m_home.path());
    if (!waitUntil([this] { return m_channel != nullptr; }))
        qFatal("The program did not connect to the display.");
    m_probe = std::make_unique<Probe>(m_home.path());
    if (!waitUntil([this] { return m_probe->answerCount() > 5; }))
        qFatal("The program does not answer.");
}

// The program keeps its settings in its own folder, so it runs from a copy.
void FloodedProgram::install(const QString& program, const QString& service)
{
    const QDir source = QFileInfo(program).dir();
    const QString folder = m_home.filePath(u"app"_s);
    QDir().mkpath(folder);
    const QFileInfoList files = source.entryInfoList(
        {u"VORNApp"_s, u"PatchPilot"_s, u"config.json"_s, u"libPortalHub.so*"_s}, QDir::Files);
    for (const QFileInfo& file : files)
        QFile::copy(file.filePath(), folder + u'/' + file.fileName());
    QSettings config(folder + u"/config.ini"_s, QSettings::IniFormat);
    config.setValue(u"VORNApp/use_remote_device"_s, true);
    if (service.isEmpty())
        return;
    config.setValue(keys::config::ServerUrl, service);
    DBManager user(folder + u"/userdata.db"_s);
    for (const auto key : {keys::user::Email, keys::user::Token, keys::user::UserId})
        user.saveUserData(key, u"a@b.example"_s);
}

bool FloodedProgram::waitUntil(const std::function<bool()>& isDone,
                               std::chrono::milliseconds patience)
{
    return bench::waitUntil(isDone, patience);
}

FloodedProgram::Figures FloodedProgram::measure(const std::function<void()>& flood)
{
    const double logBefore = logMegabytes();
    m_probe->take();
    flood();
    const bench::Values answers = m_probe->take();
    Figures figures;
    if (!answers.empty()) {
        figures.worst = std::ranges::max(answers);
        figures.percentile = bench::quantile(answers, 0.99);
    }
    figures.resident = m_run->residentMegabytes();
    figures.log = logMegabytes() - logBefore;
    return figures;
}

int FloodedProgram::send(int count, const std::function<QByteArray(int)>& message,
                         int expectedReplies)
{
    m_replies = 0;
    int sent = 0;
    QEventLoop loop;
    const auto write = [&] {
        for (; sent < count && m_channel->bytesToWrite() < MaxUnwritten; ++sent)
            m_channel->write(message(sent));
        if (sent == count)
            loop.quit();
    };
    QObject::connect(m_channel, &QLocalSocket::bytesWritten, &loop, write);
    QTimer::singleShot(0, &loop, write);
    loop.exec();
    // Waits as long as replies arrive.
    qint64 before = -1;
    while (m_replies < expectedReplies && m_replies != before) {
        before = m_replies;
        waitUntil([&] { return m_replies >= expectedReplies; });
    }
    return int(m_replies);
}

void FloodedProgram::readReplies()
{
    constexpr QByteArrayView Acknowledgement = "\"type\":3";
    const QByteArray bytes = m_tail + m_channel->readAll();
    m_tail = bytes.right(Acknowledgement.size() - 1);
    for (qsizetype at = bytes.indexOf(Acknowledgement); at >= 0;
         at = bytes.indexOf(Acknowledgement, at + 1))
        ++m_replies;
}

QByteArray FloodedProgram::registryValue() const
{
    QFile file(m_home.filePath(u"VORNApp/registry.ini"_s));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray text = file.readAll();
    const QByteArray key = "disable_local_dev=";
    const qsizetype at = text.indexOf(key);
    return at < 0 ? QByteArray() : text.mid(at + key.size(), 1);
}

QStringList FloodedProgram::logFiles() const
{
    QStringList found;
    QDirIterator files(m_home.path(), {u"*.log"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        found.append(files.next());
    return found;
}

double FloodedProgram::logMegabytes() const
{
    double bytes = 0;
    for (const QString& name : logFiles())
        bytes += double(QFileInfo(name).size());
    return bytes / 1e6;
}

bool FloodedProgram::hasLogged(const QByteArray& text) const
{
    const QStringList names = logFiles();
    return std::ranges::any_of(names, [&text](const QString& name) {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) && file.readAll().contains(text);
    });
}

void FloodedProgram::askForWindow() const
{
    QLocalSocket socket;
    socket.connectToServer(m_home.filePath(u"VORNAppLocalServer"_s));
    if (socket.waitForConnected())
        socket.write("activate");
    socket.waitForBytesWritten();
}

// Positions in the window: the entry of the meetings page, and the button on the page.
bool FloodedProgram::startSetUp()
{
    const QString window = visibleWindow(u"^VORNApp$"_s);
    for (const auto& [x, y] : {std::pair(129, 229), std::pair(563, 430)}) {
        runTool({u"mousemove"_s, u"--sync"_s, u"--window"_s, window, QString::number(x),
                 QString::number(y), u"click"_s, u"1"_s});
    }
    return waitUntil([] { return !visibleWindow(u"^VORN Bar$"_s).isEmpty(); });
}

bool FloodedProgram::quit()
{
    m_probe.reset();
    return m_run->quit();
}
