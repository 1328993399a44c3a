#include "simulator/display/CameraHead.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

enum Key { ZoomIn, ZoomOut, Up, Down, Left, Right };

constexpr double DegreesPerSecond = 20;
constexpr double ZoomPerSecond = 1.5; // factor

bool isIndex(int number, std::size_t count)
{
    return number >= 0 && std::size_t(number) < count;
}

// Two decimals, for people who read the events.
double rounded(double value)
{
    return std::round(value * 100) / 100;
}

QJsonObject described(const CameraView& view)
{
    return {{u"pan"_s, rounded(view.pan)},
            {u"tilt"_s, rounded(view.tilt)},
            {u"zoom"_s, rounded(view.zoom)}};
}

} // namespace

void CameraHead::hold(int key, bool down)
{
    if (isIndex(key, m_held.size()))
        m_held.at(std::size_t(key)) = down;
}

bool CameraHead::isMoving() const
{
    return std::ranges::find(m_held, true) != m_held.end();
}

double CameraHead::direction(int positiveKey, int negativeKey) const
{
    return double(m_held.at(std::size_t(positiveKey))) -
           double(m_held.at(std::size_t(negativeKey)));
}

void CameraHead::advance(double seconds)
{
    m_view.pan =
        std::clamp(m_view.pan + direction(Right, Left) * DegreesPerSecond * seconds, -90., 90.);
    m_view.tilt =
        std::clamp(m_view.tilt + direction(Up, Down) * DegreesPerSecond * seconds, -30., 30.);
    m_view.zoom = std::clamp(
        m_view.zoom * std::pow(ZoomPerSecond, direction(ZoomIn, ZoomOut) * seconds), 1., 4.);
}

void CameraHead::save(int number)
{
    if (isIndex(number, m_presets.size()))
        m_presets.at(std::size_t(number)) = m_view;
}

void CameraHead::recall(int number)
{
    if (isIndex(number, m_presets.size()))
        m_view = m_presets.at(std::size_t(number));
}

QJsonObject CameraHead::status() const
{
    QJsonObject status = described(m_view);
    QJsonArray presets;
    for (const CameraView& preset : m_presets)
        presets.append(described(preset));
    status.insert(u"presets"_s, presets);
    return status;
}
