#pragma once

#include <QAbstractNativeEventFilter>

#include <cstdint>
#include <functional>

/// Looks for the tray of an X11 desktop that embeds the windows of icons (XEmbed). Main thread.
class EmbeddingTray : public QAbstractNativeEventFilter
{
public:
    /// @param appeared  called when a tray may have appeared
    explicit EmbeddingTray(std::function<void()> appeared);
    ~EmbeddingTray() override;
    Q_DISABLE_COPY_MOVE(EmbeddingTray)

    /// False where the program does not use X11.
    [[nodiscard]] static bool exists();

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

private:
    const std::function<void()> m_appeared;
    const std::uint32_t m_announcement; // the X11 atom of a tray's announcement
};
