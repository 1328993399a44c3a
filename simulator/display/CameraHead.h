#pragma once

#include <QJsonObject>

#include <array>

namespace simulator
{

/// Direction and zoom of the camera.
struct CameraView {
    double pan = 0;  ///< degrees, -90 (left) to 90
    double tilt = 0; ///< degrees, -30 (down) to 30
    double zoom = 1; ///< 1 to 4

    bool operator==(const CameraView&) const = default;
};

/// The moving part of the camera. It turns and zooms while a key is held down, and stores three
/// preset positions.
class CameraHead
{
public:
    /// @p key is 0 to 5: zoom in, zoom out, up, down, left, right. Other keys are ignored.
    void press(int key) { hold(key, true); }
    void release(int key) { hold(key, false); }
    bool isMoving() const;
    void advance(double seconds);

    /// @p number is 0 to 2; other numbers are ignored.
    void save(int number);
    void recall(int number);

    const CameraView& view() const { return m_view; }
    QJsonObject status() const;

private:
    void hold(int key, bool down);
    double direction(int positiveKey, int negativeKey) const;

    CameraView m_view;
    std::array<CameraView, 3> m_presets;
    std::array<bool, 6> m_held{};
};

} // namespace simulator
