#include "bench/endurance/WorkingYear.h"

#include "bench/WaitUntil.h"
#include "persistence/DBManager.h"
#include "persistence/InstalledVersions.h"
#include "persistence/Keys.h"
#include "platform/Folders.h"
#include "platform/Registry.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QSettings>

#include <array>
#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr int DaysOfAMonth = 21;
constexpr int Meetings = 5;
constexpr int SetUps = 3;
constexpr int CameraMoves = 20;
constexpr int FramesOfASetUp = 3;
constexpr auto LengthOfASleep = std::chrono::hours(14); // from the evening to the next morning

const QString Email = u"ada@acme.example"_s;
const QString Password = u"Engine1843"_s;

/// The key under which a meeting program is installed.
const QString MeetingProgramKey =
    u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\ZoomUMX"_s;

QByteArray contentOf(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool check(const char* what, bool isMet)
{
    std::printf("  [%c] %s\n", isMet ? 'x' : ' ', what);
    return isMet;
}

bool check(const char* what, const QString& value, const QString& expected)
{
    const bool isMet = check(what, value == expected);
    if (!isMet)
        std::printf("      is \"%s\" instead of \"%s\"\n", qPrintable(value.left(80)),
                    qPrintable(expected.left(80)));
    return isMet;
}

} // namespace

WorkingYear::WorkingYear(QString home, SimulatedRoom& room)
    : m_home(std::move(home))
    , m_room(room)
{
    prepare();
    m_program.emplace();
    m_room.command(u"wait-client"_s);
}

void WorkingYear::prepare() const
{
    QSettings config(m_home + u"/app/config.ini"_s, QSettings::IniFormat);
    config.setValue(keys::config::ServerUrl, m_room.serviceUrl());
    config.setValue(keys::config::RemoteDeviceInterval, 1);
    const QString meeting = m_home + u"/app/meeting"_s;
    QFile file(meeting);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write("#!/bin/sh\necho started >> \"$0.log.txt\"\n") < 0)
        qFatal("The meeting program cannot be written.");
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    platform::writeRegistry(MeetingProgramKey, u"DisplayIcon"_s, meeting);
    m_room.command(u"devices root "_s + m_home + u"/sys"_s);
    m_room.command(u"account add %1 %2 firstName=Ada lastName=Byron"_s.arg(Email, Password));
    m_room.waitForEvent(u"account-added"_s);
}

void WorkingYear::work(int day)
{
    m_room.command(u"plug all"_s);
    signIn();
    for (int number = 0; number < Meetings; ++number) {
        connectDisplay();
        if (number == 0)
            moveCamera();
        meet(number);
        disconnectDisplay();
    }
    for (int number = 1; number <= SetUps; ++number)
        setUp(number == SetUps);
    editProfile(day, {});
    const QString picture = m_home + u"/picture.png"_s;
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(QColor::fromHsv(day % 360, 200, 200));
    image.save(picture);
    editProfile(day, picture);
    changeSettings(day);
    sleepAndWake();
    if (day % DaysOfAMonth == 0)
        upgrade(day);
    m_room.command(u"unplug all"_s);
    device().setLogin(false);
}

void WorkingYear::wait(const char* forWhat, const std::function<bool()>& isDone) const
{
    if (!bench::waitUntil(isDone))
        qFatal("This does not happen: %s", forWhat);
}

QJsonObject WorkingYear::request(const std::function<void()>& send, Signal succeeded,
                                 FailureSignal failed)
{
    static const std::array s_faults{u"error-status"_s, u"close-early"_s, u"garbage"_s,
                                     u"short-body"_s,   u"not-http"_s,    u"endless-body"_s};
    const bool fails = ++m_requests % 10 == 0;
    if (fails) {
        m_room.command(u"account fault all "_s +
                       s_faults.at(std::size_t(m_requests / 10) % s_faults.size()));
        m_room.waitForEvent(u"command"_s);
    }
    std::optional<QJsonObject> reply;
    bool hasFailed = false;
    QObject context;
    QObject::connect(&m_program->network(), succeeded, &context,
                     [&](const QJsonObject& object) { reply = object; });
    QObject::connect(&m_program->network(), failed, &context, [&] { hasFailed = true; });
    send();
    wait("an answer of the service", [&] { return reply || hasFailed; });
    if (fails != hasFailed)
        qFatal("The request %s.", fails ? "succeeds" : "fails");
    if (!fails)
        return *reply;
    m_room.command(u"account fault all none"_s);
    m_room.waitForEvent(u"command"_s);
    return request(send, succeeded, failed);
}

void WorkingYear::signIn()
{
    const QJsonObject reply = request([this] { m_program->network().login(Email, Password); },
                                      &NetworkManager::loginSuccess, &NetworkManager::loginFailed);
    device().loginSuccess(reply);
    const QJsonObject data = reply[u"data"_s].toObject();
    m_user[keys::user::Token] = data[keys::user::Token].toString();
    adopt(data[u"user"_s].toObject());
}

void WorkingYear::editProfile(int day, const QString& picture)
{
    const QString name = u"Ada %1"_s.arg(day);
    const QJsonObject reply = request(
        [&] {
            m_program->network().profileUpdate(name, u"Byron"_s, u"Engines"_s, u"Countess"_s,
                                               picture);
        },
        &NetworkManager::profileUpdateSuccess, &NetworkManager::profileUpdateFailed);
    device().profileUpdateSuccess(reply);
    adopt(reply[u"data"_s].toObject());
    if (device().firstName() != name)
        qFatal("The profile is not taken.");
}

void WorkingYear::adopt(const QJsonObject& user)
{
    for (const auto key :
         {keys::user::UserId, keys::user::Email, keys::user::FirstName, keys::user::LastName,
          keys::user::Company, keys::user::Title, keys::user::Picture}) {
        if (user.contains(key))
            m_user[key] = user[key].toString();
    }
}

void WorkingYear::connectDisplay(const QString& mode)
{
    m_room.command(u"connect "_s + mode);
    wait("the display is connected",
         [&] { return device().connectMode() == (mode.isEmpty() ? 1 : 2); });
}

void WorkingYear::disconnectDisplay()
{
    m_room.command(u"disconnect"_s);
    wait("the display is disconnected", [this] { return device().connectMode() == 0; });
}

/// A room meeting on the display, or sharing with a meeting program of this PC.
void WorkingYear::meet(int number)
{
    device().setVolume(10 + number);
    if (number % 2 == 0) {
        m_room.command(u"source zoom"_s);
        wait("the room meeting", [this] { return device().zoomSwitch() == 2; });
    } else {
        device().setByodSwitch(2);
        device().startBYOD();
        wait("the sharing", [this] { return device().byodSwitch() == 2; });
        device().launchZoom();
        ++m_launches;
        wait("the meeting program", [this] {
            return contentOf(m_home + u"/app/meeting.log.txt"_s).count('\n') == m_launches;
        });
    }
    m_room.command(u"source available"_s);
    wait("the end of the meeting",
         [this] { return device().byodSwitch() == 1 && device().zoomSwitch() == 1; });
}

void WorkingYear::moveCamera()
{
    m_room.command(u"autoframing off"_s);
    m_room.waitForEvent(u"camera"_s);
    for (int move = 0; move < CameraMoves; ++move) {
        m_program->camera().scale(move % 6, CameraControl::Btn_Down);
        m_program->camera().scale(move % 6, CameraControl::Btn_Up);
    }
    wait("the camera's commands",
         [this] { return m_room.count(u"camera-command"_s) == qsizetype{2} * CameraMoves; });
}

void WorkingYear::changeSettings(int day)
{
    m_usesRemoteDevice = day % 2 == 0;
    device().setUseRemoteDevice(m_usesRemoteDevice);
    device().setSupportLaunchGoogle(m_usesRemoteDevice);
}

void WorkingYear::setUp(bool vanishes)
{
    connectDisplay(u"first-run"_s);
    m_room.command(u"video start"_s);
    const auto isFirst = [](const QJsonObject& setup) { return setup[u"step"_s] == u"welcome"_s; };
    QJsonObject step = m_room.waitForEvent(u"setup"_s, isFirst);
    const int firstFrame = device().frameIndex();
    m_program->startSetup();
    wait("the frames of the set-up",
         [&] { return device().frameIndex() - firstFrame >= FramesOfASetUp; });
    if (vanishes) {
        m_room.command(u"video die"_s);
        m_room.command(u"link down"_s);
        m_room.command(u"link up"_s);
        m_room.command(u"wait-client"_s);
        disconnectDisplay();
    } else {
        while (step[u"step"_s] != u"done"_s) {
            const QString name = step[u"step"_s].toString();
            m_room.command(u"status"_s);
            for (const auto& button : step[u"buttons"_s].toArray()) {
                if (button[u"name"_s] == u"next"_s)
                    press(button.toObject());
            }
            step = m_room.waitForEvent(
                u"setup"_s, [&](const QJsonObject& setup) { return setup[u"step"_s] != name; });
            if (step.isEmpty())
                qFatal("The set-up does not go on after the step %s.", qPrintable(name));
        }
        wait("the set-up display is in use", [this] { return device().connectMode() == 1; });
    }
    m_program->closeMonitor();
    m_room.command(u"video stop"_s);
    if (!vanishes)
        disconnectDisplay();
}

void WorkingYear::press(const QJsonObject& button)
{
    for (const int type : {0, 1})
        device().getMouseEvent(type, float(button[u"x"_s].toDouble()),
                               float(button[u"y"_s].toDouble()));
}

void WorkingYear::sleepAndWake()
{
    m_sleep.pass(LengthOfASleep);
    connectDisplay();
    disconnectDisplay();
}

/// The updater offers a version, installs it, and the program is started again.
void WorkingYear::upgrade(int day)
{
    m_version = u"2.0.0.%1"_s.arg(day);
    QSettings updater(m_home + u"/VORNApp/patchpilot.ini"_s, QSettings::IniFormat);
    updater.setValue(u"offer"_s, m_version);
    updater.setValue(u"seconds"_s, 0);
    updater.sync();
    wait("a new version",
         [this] { return installedVersionValue(keys::registry::NewVersion) == m_version; });
    device().startUpdate();
    wait("the upgrade", [this] { return device().version() == m_version; });
    m_program.reset();
    m_program.emplace();
    m_room.command(u"wait-client"_s);
}

bool WorkingYear::close()
{
    signIn();
    m_program.reset();
    bool holds = true;
    DBManager database(m_home + u"/app/userdata.db"_s);
    for (const auto& [key, value] : m_user.asKeyValueRange())
        holds &= check(qPrintable(u"database: "_s + key), database.getUserData(key, {}).toString(),
                       value);
    const auto registry = [](const QString& name) {
        return platform::readRegistry(keys::registry::Path, name).toString();
    };
    holds &= check("registry: user", registry(keys::registry::UserName), Email);
    holds &= check("registry: the PC's own devices", registry(keys::registry::DisableLocalDevices),
                   u"0"_s);
    if (!m_version.isEmpty())
        holds &= check("registry: version", registry(keys::registry::InstalledVersion), m_version);
    const QSettings config(m_home + u"/app/config.ini"_s, QSettings::IniFormat);
    const QString expected = QVariant(m_usesRemoteDevice).toString();
    holds &= check("config.ini: remote device", config.value(keys::config::RemoteDevice).toString(),
                   expected);
    holds &= check("config.ini: launcher", config.value(keys::config::LaunchGoogle).toString(),
                   expected);
    const qsizetype kept = QDir(platform::logBackupFolder()).entryList({u"*.log"_s}).size();
    holds &= check("log: files of earlier runs are removed", kept <= RunningProgram::KeptLogFiles);
    return holds;
}
