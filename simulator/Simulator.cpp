#include "simulator/Simulator.h"

#include "simulator/account/AccountFeature.h"
#include "simulator/devices/DevicesFeature.h"
#include "simulator/display/DisplayCamera.h"
#include "simulator/display/DisplayLink.h"
#include "simulator/display/DisplayModel.h"
#include "simulator/display/Expectations.h"
#include "simulator/display/LinkCommands.h"
#include "simulator/script/FlowCommands.h"
#include "simulator/script/ScriptRunner.h"
#include "simulator/video/VideoFeature.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <ostream>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

// "message" is the parsed object, or the text if it is no object. "text" is the text itself.
QJsonObject messageFields(int id, const QByteArray& text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    const QString plain = QString::fromUtf8(text);
    return {{u"id"_s, id},
            {u"message"_s, document.isObject() ? QJsonValue(document.object()) : plain},
            {u"text"_s, plain}};
}

} // namespace

Simulator::Simulator(const QString& socketName, std::ostream& events, std::ostream& errors)
    : m_log(events)
    , m_errors(errors)
    , m_link(std::make_unique<DisplayLink>(socketName))
{
    auto* const display = new DisplayModel(m_log, this);
    auto* const expectations = new Expectations(this);
    auto* const camera = new DisplayCamera(*display, m_log, this);
    auto* const account = new AccountFeature(m_log, this);
    auto* const video = new VideoFeature(m_log, this);
    m_devices = new DevicesFeature(m_log, this);
    m_flow = new FlowCommands(m_log, this);
    addFeature(display);
    addFeature(camera);
    addFeature(new LinkCommands(*m_link, m_log, this));
    addFeature(expectations);
    addFeature(video);
    addFeature(account);
    addFeature(m_devices);
    addFeature(m_flow);
    addOwnCommands();

    connect(display, &DisplayModel::send, m_link.get(), &DisplayLink::send);
    connectLink(expectations);
    connect(expectations, &Expectations::forgotten, account, &AccountFeature::forgetRequests);
    connect(expectations, &Expectations::forgotten, video, &VideoFeature::forget);
    video->setCamera(camera->view());
    connect(camera, &DisplayCamera::viewChanged, video,
            [video, camera] { video->setCamera(camera->view()); });
    connect(video, &VideoFeature::setupFinished, display,
            [display] { display->connectDisplay(DisplayModel::NormalUse); });
    // Connected after connectLink(): a message is recorded before the display reacts to it.
    connect(m_link.get(), &DisplayLink::messageReceived, display, &DisplayModel::receive);
    connect(m_link.get(), &DisplayLink::clientConnected, display, &DisplayModel::greet);
    connectScripts();
}

Simulator::~Simulator()
{
    // The destructor of the link still writes. The receivers of its signals are gone by then.
    m_link->disconnect();
}

void Simulator::addFeature(Feature* feature)
{
    m_features.append(feature);
    m_interpreter.beginSection(feature->name());
    feature->addCommands(m_interpreter);
}

void Simulator::addOwnCommands()
{
    m_interpreter.beginSection(u"simulator"_s);
    m_interpreter.add(u"status"_s, u"Prints the state of all features."_s,
                      [this] { m_log.write(u"status"_s, status()); });
    m_interpreter.add(u"help"_s, u"Shows the commands, on standard error."_s,
                      [this] { printError(commandHelp()); });
}

void Simulator::connectLink(Expectations* expectations)
{
    connect(m_link.get(), &DisplayLink::clientConnected, this, [this](int number) {
        m_log.write(u"client-connected"_s, {{u"client"_s, number}});
    });
    connect(m_link.get(), &DisplayLink::clientDisconnected, this, [this](int number) {
        m_log.write(u"client-disconnected"_s, {{u"client"_s, number}});
    });
    connect(m_link.get(), &DisplayLink::messageReceived, this,
            [this, expectations](int id, const QByteArray& text) {
                m_log.write(u"message"_s, messageFields(id, text));
                expectations->noteReceived(id, text);
            });
    connect(m_link.get(), &DisplayLink::malformedLineReceived, this, [this](const auto& line) {
        m_log.write(u"malformed-line"_s, {{u"text"_s, QString::fromUtf8(line)}});
    });
    connect(m_link.get(), &DisplayLink::messageSent, this,
            [this, expectations](int id, const QByteArray& text) {
                m_log.write(u"sent"_s, messageFields(id, text));
                expectations->noteSent(id, text);
            });
}

void Simulator::connectScripts()
{
    m_input =
        new ScriptRunner(u"stdin"_s, ScriptRunner::OnFailure::Continue, m_interpreter, m_log, this);
    connect(m_input, &ScriptRunner::failed, this, &Simulator::scriptFailed);
    for (Feature* feature : std::as_const(m_features))
        connect(feature, &Feature::changed, m_input, &ScriptRunner::recheck);
    connect(m_flow, &FlowCommands::quitRequested, this, [this](int exitCode) {
        m_log.write(u"quit"_s, {{u"code"_s, exitCode}});
        emit finished(exitCode);
    });
}

bool Simulator::loadScenario(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        printError(u"cannot read the scenario \"%1\": %2"_s.arg(fileName, file.errorString()));
        return false;
    }
    m_scenario = new ScriptRunner(QFileInfo(fileName).fileName(), ScriptRunner::OnFailure::Stop,
                                  m_interpreter, m_log, this);
    for (Feature* feature : std::as_const(m_features))
        connect(feature, &Feature::changed, m_scenario, &ScriptRunner::recheck);
    connect(m_scenario, &ScriptRunner::idle, this, [this] { m_log.write(u"scenario-finished"_s); });
    connect(m_scenario, &ScriptRunner::failed, this, [this](const QString& message) {
        scriptFailed(message);
        emit finished(ExitFailed);
    });
    const QStringList errors = m_scenario->load(QString::fromUtf8(file.readAll()));
    for (const QString& error : errors)
        printError(error);
    return errors.isEmpty();
}

bool Simulator::openDeviceTree(const QString& folder)
{
    const QString error = m_devices->setRoot(folder);
    if (!error.isEmpty())
        printError(error);
    return error.isEmpty();
}

bool Simulator::listen()
{
    const QString error = m_link->listen();
    if (!error.isEmpty())
        printError(error);
    else
        m_log.write(u"listening"_s, {{u"socket"_s, m_link->socketName()}});
    return error.isEmpty();
}

void Simulator::enterCommand(const QString& line)
{
    const QString error = m_input->append(line);
    if (error.isEmpty())
        return;
    m_log.write(u"bad-command"_s, {{u"command"_s, line}, {u"reason"_s, error}});
    printError(error);
}

void Simulator::scriptFailed(const QString& message)
{
    m_flow->noteFailure();
    printError(message);
}

void Simulator::printError(const QString& message)
{
    m_errors << message.toStdString() << std::endl;
}

QJsonObject Simulator::status() const
{
    QJsonObject status;
    for (const Feature* feature : m_features) {
        const QJsonObject part = feature->status();
        if (!part.isEmpty())
            status.insert(feature->name(), part);
    }
    return status;
}
