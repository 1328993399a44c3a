#include "rig/PageRig.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QImage>
#include <QQmlContext>
#include <QQmlProperty>
#include <QQuickItem>
#include <QQuickView>
#include <QUrl>

#include <utility>

namespace
{

QStringList g_spoken; // main thread

void noteSpoken(QAccessibleEvent* event)
{
    if (event->type() == QAccessible::Alert)
        g_spoken += event->accessibleInterface()->text(QAccessible::Name);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    if (event->type() == QAccessible::Announcement)
        g_spoken += static_cast<QAccessibleAnnouncementEvent*>(event)->message();
#endif
}

bool isControl(const QAccessibleInterface& node)
{
    switch (node.role()) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::Link:
    case QAccessible::ListItem:
    case QAccessible::PageTab:
    case QAccessible::Slider:
        return true;
    case QAccessible::EditableText:
        return !node.state().readOnly;
    default:
        return false;
    }
}

QStringList controlsBelow(const QAccessibleInterface& node)
{
    if (node.state().invisible)
        return {};
    QStringList names;
    if (isControl(node)) {
        const QString name = node.text(QAccessible::Name);
        names += name.isEmpty() ? node.text(QAccessible::Description) : name;
    }
    for (int i = 0; i < node.childCount(); ++i)
        names += controlsBelow(*node.child(i));
    return names;
}

} // namespace

void mirrorLayout(const QQuickView& view)
{
    if (QGuiApplication::layoutDirection() != Qt::RightToLeft)
        return;
    QQmlContext* const names = qmlContext(view.rootObject());
    QQmlProperty(view.contentItem(), u"LayoutMirroring.enabled"_s, names).write(true);
    QQmlProperty(view.contentItem(), u"LayoutMirroring.childrenInherit"_s, names).write(true);
}

PageRig::PageRig()
    : m_camera(m_world.channel)
    , m_screen(m_world)
{
    m_world.cameraReports = &m_camera;
    QAccessible::installUpdateHandler(noteSpoken);
    DeviceControl& device = m_world.start();
    connect(&device, &DeviceControl::addTask, this,
            [this](const QString& task, const QVariantList& arguments) {
                QStringList words{task};
                for (const QVariant& argument : arguments)
                    words += argument.toString();
                m_tasks += words.join(u' ');
            });
    connect(&m_service, &AccountService::requestReceived, this,
            [this](const AccountRequest& request) {
                m_requests += QString::fromLatin1(request.method + ' ' + request.target);
            });
    if (!m_service.listen())
        qFatal("The account service could not listen");
    m_network.emplace(m_service.baseUrl(), *m_world.profile);
}

void PageRig::publish(QQmlContext* context)
{
    context->setContextProperty(u"deviceControl"_s, &*m_world.device);
    context->setContextProperty(u"ptz"_s, &m_camera);
    context->setContextProperty(u"network"_s, &*m_network);
    context->setContextProperty(u"announcer"_s, &m_announcer);
    context->setContextProperty(u"windowManager"_s, &m_windows);
    context->setContextProperty(u"windowPlace"_s, &m_windowPlace);
    context->setContextProperty(u"rig"_s, this);
    context->setContextProperty(u"screen"_s, &m_screen);
}

QStringList PageRig::takeMessageTexts()
{
    QStringList texts;
    for (const ChannelMessage& sent : m_world.channel.take())
        texts += QString::fromStdString(sent.text);
    return texts;
}

void PageRig::report(int id, const QString& json)
{
    m_world.device->handleChannelMessage(id, json.toStdString());
}

void PageRig::plug(bool microphone, bool speaker, bool camera)
{
    m_world.devices->mic = microphone ? 1 : 0;
    m_world.devices->spk = speaker ? 1 : 0;
    m_world.devices->cam = camera ? 1 : 0;
}

QStringList PageRig::takeTasks()
{
    return std::exchange(m_tasks, {});
}

void PageRig::setInstalledVersion(const QString& name, const QString& value)
{
    m_world.setVersion(name, value);
}

void PageRig::addAccount(const QVariantMap& account)
{
    m_service.store().addAccount({.userId = account.value(u"userId"_s).toString(),
                                  .email = account.value(u"email"_s).toString(),
                                  .password = account.value(u"password"_s).toString(),
                                  .firstName = account.value(u"firstName"_s).toString(),
                                  .lastName = account.value(u"lastName"_s).toString(),
                                  .company = account.value(u"company"_s).toString(),
                                  .title = account.value(u"title"_s).toString(),
                                  .picture = account.value(u"picture"_s).toString()});
}

QVariantMap PageRig::account(const QString& email)
{
    const Account* found = m_service.store().accountByEmail(email);
    if (!found)
        return {};
    return {{u"userId"_s, found->userId},
            {u"lastName"_s, found->lastName},
            {u"title"_s, found->title},
            {u"picture"_s, found->picture}};
}

QStringList PageRig::takeRequests()
{
    return std::exchange(m_requests, {});
}

void PageRig::endSessions(const QString& email)
{
    m_service.store().revokeTokens(account(email).value(u"userId"_s).toString());
}

QStringList PageRig::takeSpoken()
{
    return std::exchange(g_spoken, {});
}

QStringList PageRig::exposedControls(QQuickItem* item) const
{
    QStringList names = controlsBelow(*QAccessible::queryAccessibleInterface(item->window()));
    names.sort();
    return names;
}

QString PageRig::makePicture(const QString& name, int size)
{
    truncatePicture(name);
    QFile file(m_world.folder.filePath(name));
    if (!file.open(QIODevice::Append) || !file.resize(size))
        qFatal("The picture could not be written");
    return QUrl::fromLocalFile(file.fileName()).toString(QUrl::FullyEncoded);
}

void PageRig::truncatePicture(const QString& name)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    if (!image.save(m_world.folder.filePath(name), "PNG"))
        qFatal("The picture could not be written");
}
