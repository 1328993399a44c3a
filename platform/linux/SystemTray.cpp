#include "platform/SystemTray.h"

#include "platform/linux/EmbeddingTray.h"
#include "platform/linux/StatusNotifierHost.h"

#include <optional>
#include <utility>

namespace platform
{

/// A host of StatusNotifier items comes first, as it does in Qt. Stops looking when it has found a
/// tray.
class SystemTray::Private
{
public:
    explicit Private(std::function<void(Opening opening)> callback)
        : found(std::move(callback))
    {
        embedding.emplace([this] { host.ask(); });
        QObject::connect(&host, &StatusNotifierHost::answered, &host,
                         [this](bool isRegistered) { decide(isRegistered); });
        host.ask();
    }

    void decide(bool hasHost)
    {
        if (isFound || (!hasHost && !EmbeddingTray::exists()))
            return;
        isFound = true;
        embedding.reset();
        found(hasHost ? Opening::Activation : Opening::DoubleClick);
    }

    std::function<void(Opening opening)> found;
    bool isFound = false;
    StatusNotifierHost host;
    std::optional<EmbeddingTray> embedding;
};

SystemTray::SystemTray(std::function<void(Opening opening)> found)
    : m_private(std::make_unique<Private>(std::move(found)))
{
}

SystemTray::~SystemTray() = default;

} // namespace platform
