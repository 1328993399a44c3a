#include "platform/linux/EmbeddingTray.h"

#include <QByteArray>
#include <QGuiApplication>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <utility>

#include <xcb/xcb.h>

namespace
{

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

/// Null where the program does not use X11.
xcb_connection_t* xServer()
{
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_atom_t atom(xcb_connection_t* server, const QByteArray& name)
{
    const auto request =
        xcb_intern_atom(server, 0, static_cast<std::uint16_t>(name.size()), name.constData());
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(server, request, nullptr),
                                               std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

int screenNumber()
{
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) != 0)
        std::free(host);
    return screen;
}

} // namespace

EmbeddingTray::EmbeddingTray(std::function<void()> appeared)
    : m_appeared(std::move(appeared))
    , m_announcement(xServer() ? atom(xServer(), "MANAGER") : 0)
{
    qGuiApp->installNativeEventFilter(this);
}

EmbeddingTray::~EmbeddingTray()
{
    qGuiApp->removeNativeEventFilter(this);
}

bool EmbeddingTray::exists()
{
    xcb_connection_t* const server = xServer();
    if (!server)
        return false;
    const auto selection = atom(server, "_NET_SYSTEM_TRAY_S" + QByteArray::number(screenNumber()));
    const Owned<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(server, xcb_get_selection_owner(server, selection), nullptr),
        std::free);
    return reply && reply->owner != XCB_WINDOW_NONE;
}

/// A tray announces itself to all clients.
bool EmbeddingTray::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto* const event = static_cast<const xcb_client_message_event_t*>(message);
    const bool isMessage = (event->response_type & 0x7f) == XCB_CLIENT_MESSAGE;
    if (isMessage && event->type == m_announcement)
        m_appeared();
    return false;
}
