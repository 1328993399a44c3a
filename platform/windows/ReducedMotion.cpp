#include "platform/ReducedMotion.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>

#include <utility>

#include <qt_windows.h>

namespace platform
{

/// Windows sends each change of a setting to every top-level window.
class ReducedMotion::Private : public QAbstractNativeEventFilter
{
public:
    explicit Private(std::function<void(bool isWanted)> changed)
        : m_changed(std::move(changed))
    {
        QCoreApplication::instance()->installNativeEventFilter(this);
        report();
    }
    ~Private() override { QCoreApplication::instance()->removeNativeEventFilter(this); }
    Q_DISABLE_COPY_MOVE(Private)

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override
    {
        const auto* const event = static_cast<const MSG*>(message);
        if (event->message == WM_SETTINGCHANGE && event->wParam == SPI_SETCLIENTAREAANIMATION)
            report();
        return false;
    }

private:
    void report() const
    {
        BOOL isAnimated = TRUE;
        if (SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &isAnimated, 0))
            m_changed(!isAnimated);
    }

    const std::function<void(bool isWanted)> m_changed;
};

ReducedMotion::ReducedMotion(std::function<void(bool isWanted)> changed)
    : m_private(std::make_unique<Private>(std::move(changed)))
{
}

ReducedMotion::~ReducedMotion() = default;

} // namespace platform
