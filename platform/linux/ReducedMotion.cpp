#include "platform/ReducedMotion.h"

#include "platform/linux/PortalSettings.h"

#include <utility>

namespace platform
{

class ReducedMotion::Private
{
public:
    explicit Private(std::function<void(bool isWanted)> changed)
    {
        QObject::connect(&settings, &PortalSettings::reducedMotionAnswered, &settings,
                         std::move(changed));
        settings.ask();
    }

    PortalSettings settings;
};

ReducedMotion::ReducedMotion(std::function<void(bool isWanted)> changed)
    : m_private(std::make_unique<Private>(std::move(changed)))
{
}

ReducedMotion::~ReducedMotion() = default;

} // namespace platform
