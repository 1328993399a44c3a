#include "simulator/video/SetupPicture.h"

#include "simulator/video/Nv12Picture.h"
#include "simulator/video/SetupFlow.h"

#include <QFontDatabase>
#include <QLinearGradient>
#include <QPainter>
#include <QTime>

#include <algorithm>
#include <array>
#include <cmath>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

constexpr QRectF ClockArea(0.74, 0.045, 0.18, 0.075);
constexpr QRectF CounterArea(0.36, 0.83, 0.28, 0.06);
constexpr QRectF TrackArea(0.08, 0.955, 0.84, 0.016);
constexpr QRectF CameraArea(0.62, 0.52, 0.3, 0.24);
constexpr QRectF FirstPatchArea(0.62, 0.36, 0.04, 0.071);
constexpr double PatchDistance = 0.05;
constexpr int TrackFrames = 120; // from one end to the other

constexpr QRgb Accent = 0xFF4DAF4E;
constexpr QRgb Ink = 0xFFF2F5F7;
constexpr QRgb FaintInk = 0xFF93A4AE;
constexpr QRgb Surface = 0xFF24323B;
constexpr QRgb Background = 0xFF141D23;

/// Brings a font, because a system may have none that Qt finds.
QFont textFont(int pixelSize, bool isBold = false)
{
    static const int s_font = QFontDatabase::addApplicationFont(u":/fonts/LatoRegular.ttf"_s);
    QFont font(QFontDatabase::applicationFontFamilies(s_font));
    font.setPixelSize(pixelSize);
    font.setBold(isBold);
    return font;
}

} // namespace

SetupPicture::SetupPicture(const QSize& size)
    : m_size(size)
    , m_canvas(size, QImage::Format_RGB32)
{
}

QList<QRgb> SetupPicture::patchColours()
{
    return {0xFF000000, 0xFFFFFFFF, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFF808080};
}

QRect SetupPicture::patch(int n, const QSize& size)
{
    const QRectF area = FirstPatchArea.translated(n * PatchDistance, 0);
    const auto even = [](double length) { return int(length / 2) * 2; };
    return {even(area.x() * size.width()), even(area.y() * size.height()),
            even(area.width() * size.width()), even(area.height() * size.height())};
}

QRectF SetupPicture::place(const QRectF& fractions) const
{
    return {fractions.x() * m_size.width(), fractions.y() * m_size.height(),
            fractions.width() * m_size.width(), fractions.height() * m_size.height()};
}

QRect SetupPicture::movingPlace(const QRectF& fractions) const
{
    return place(fractions).toAlignedRect();
}

// Height of letters in pixels. In a narrow picture it depends on the width.
int SetupPicture::letters(double fractionOfHeight) const
{
    const double height = std::min<double>(m_size.height(), m_size.width() * 9.0 / 16);
    return std::max(1, int(std::lround(height * fractionOfHeight)));
}

const QByteArray& SetupPicture::draw(const SetupFlow& flow, const std::optional<CameraView>& camera,
                                     quint32 frameNumber)
{
    if (m_drawnRevision != flow.revision()) {
        drawScreen(flow);
        drawCamera(flow, camera);
        drawMovingParts(frameNumber);
        convertToNv12(m_canvas, m_canvas.rect(), m_nv12);
        m_drawnRevision = flow.revision();
        return m_nv12;
    }
    drawMovingParts(frameNumber);
    if (camera != m_drawnCamera) {
        drawCamera(flow, camera);
        convertToNv12(m_canvas, movingPlace(CameraArea), m_nv12);
    }
    for (const QRectF& area : {ClockArea, CounterArea, TrackArea})
        convertToNv12(m_canvas, movingPlace(area), m_nv12);
    return m_nv12;
}

void SetupPicture::drawScreen(const SetupFlow& flow)
{
    m_canvas.fill(Background);
    QPainter painter(&m_canvas);
    painter.setRenderHint(QPainter::Antialiasing);
    drawHeader(painter, flow);
    drawButtons(painter, flow);
    drawPatches(painter);
    drawMark(painter, flow);
}

void SetupPicture::drawHeader(QPainter& painter, const SetupFlow& flow) const
{
    painter.setFont(textFont(letters(0.045), true));
    painter.setPen(QColor(Accent));
    painter.drawText(place({0.08, 0.045, 0.2, 0.075}), Qt::AlignVCenter, u"VORN"_s);

    // One dot for each step. The dot of the current step is wide.
    painter.setPen(Qt::NoPen);
    const double dot = letters(0.016);
    double x = place({0.08, 0, 0, 0}).x();
    for (int i = 0; i <= int(SetupFlow::Step::Finish); ++i) {
        painter.setBrush(QColor(i <= int(flow.step()) ? Accent : Surface));
        const double width = i == int(flow.step()) ? 3 * dot : dot;
        painter.drawRoundedRect(QRectF(x, m_size.height() * 0.145, width, dot), dot / 2, dot / 2);
        x += width + dot;
    }

    painter.setFont(textFont(letters(0.07), true));
    painter.setPen(QColor(Ink));
    painter.drawText(place({0.08, 0.17, 0.84, 0.09}), Qt::AlignVCenter, flow.title());
    painter.setFont(textFont(letters(0.032)));
    painter.setPen(QColor(FaintInk));
    painter.drawText(place({0.08, 0.26, 0.84, 0.06}), Qt::AlignVCenter, flow.text());
}

void SetupPicture::drawButtons(QPainter& painter, const SetupFlow& flow) const
{
    using Kind = SetupFlow::Button::Kind;
    const double radius = letters(0.018);
    const QList<SetupFlow::Button> buttons = flow.buttons();
    for (const auto& button : buttons) {
        const QRectF area = place(button.area);
        QColor face(button.kind == Kind::Next ? Accent : Surface);
        if (button.isPressed)
            face = face.darker(150);
        painter.setBrush(face);
        painter.setPen(button.isChosen ? QPen(QColor(Accent), letters(0.005)) : QPen(Qt::NoPen));
        painter.drawRoundedRect(area, radius, radius);
        painter.setFont(textFont(letters(0.034), button.kind != Kind::Option));
        painter.setPen(QColor(Ink));
        const bool isOption = button.kind == Kind::Option;
        const double indent = isOption ? 0.05 * area.width() : 0;
        painter.drawText(area.adjusted(indent, 0, 0, 0),
                         Qt::AlignVCenter | (isOption ? Qt::AlignLeft : Qt::AlignHCenter),
                         button.text);
    }
}

void SetupPicture::drawPatches(QPainter& painter) const
{
    const QList<QRgb> colours = patchColours();
    for (int i = 0; i < int(colours.size()); ++i)
        painter.fillRect(patch(i, m_size), QColor(colours.at(i)));
    painter.setFont(textFont(letters(0.024)));
    painter.setPen(QColor(FaintInk));
    painter.drawText(place({0.62, 0.44, 0.3, 0.05}), Qt::AlignVCenter, u"Panel check"_s);
}

void SetupPicture::drawMark(QPainter& painter, const SetupFlow& flow) const
{
    if (!flow.mark())
        return;
    const QPointF centre(flow.mark()->position.x() * m_size.width(),
                         flow.mark()->position.y() * m_size.height());
    const QColor colour(0xFFFFB300);
    painter.setPen(QPen(colour, letters(0.006)));
    painter.setBrush(flow.mark()->isDown ? QBrush(colour) : QBrush(Qt::NoBrush));
    painter.drawEllipse(centre, letters(0.016), letters(0.016));
}

void SetupPicture::drawCamera(const SetupFlow& flow, const std::optional<CameraView>& camera)
{
    m_drawnCamera = camera;
    const QRect area = movingPlace(CameraArea);
    QPainter painter(&m_canvas);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(area);
    painter.fillRect(area, QColor(Background));
    if (camera)
        drawRoom(painter, *camera, area);
    drawMark(painter, flow);
}

// A wall with a window, a table and three people. The room is three times as wide as the picture.
void SetupPicture::drawRoom(QPainter& painter, const CameraView& camera, const QRect& area)
{
    painter.save();
    const double unit = area.height();
    painter.translate(area.center());
    painter.scale(camera.zoom * unit, camera.zoom * unit);
    painter.translate(-camera.pan / 45, camera.tilt / 45);
    painter.setPen(Qt::NoPen);
    painter.fillRect(QRectF(-3, -2, 6, 4), QColor(0xFF3A4A54));
    painter.fillRect(QRectF(-1.4, -0.4, 0.7, 0.45), QColor(0xFF9FC6DE));
    for (const double x : {-0.45, 0.05, 0.5}) {
        painter.setBrush(QColor(Accent));
        painter.drawEllipse(QPointF(x, 0.28), 0.15, 0.22);
        painter.setBrush(QColor(0xFFE0B79A));
        painter.drawEllipse(QPointF(x, -0.02), 0.085, 0.1);
    }
    painter.fillRect(QRectF(-0.8, 0.3, 1.7, 1), QColor(0xFF7A5A3C));
    painter.restore();
}

void SetupPicture::drawMovingParts(quint32 frameNumber)
{
    QPainter painter(&m_canvas);
    for (const QRectF& area : {ClockArea, CounterArea, TrackArea})
        painter.fillRect(movingPlace(area), QColor(Background));

    painter.setFont(textFont(letters(0.045)));
    painter.setPen(QColor(Ink));
    painter.drawText(movingPlace(ClockArea), Qt::AlignVCenter | Qt::AlignRight,
                     QTime::currentTime().toString(u"HH:mm:ss"_s));
    painter.setFont(textFont(letters(0.026)));
    painter.setPen(QColor(FaintInk));
    painter.drawText(movingPlace(CounterArea), Qt::AlignCenter,
                     u"frame %1"_s.arg(frameNumber, 6, 10, QLatin1Char('0')));

    const QRect track = movingPlace(TrackArea);
    const int position = int(frameNumber % (2 * TrackFrames)); // there and back
    const double way =
        double(position < TrackFrames ? position : 2 * TrackFrames - position) / TrackFrames;
    const int length = track.width() / 6;
    painter.fillRect(track, QColor(Surface));
    painter.fillRect(track.x() + int(way * (track.width() - length)), track.y(), length,
                     track.height(), QColor(Accent));
}
