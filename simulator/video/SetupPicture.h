#pragma once

#include "simulator/display/CameraHead.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <optional>

class QPainter;

namespace simulator
{

class SetupFlow;

/// Draws the set-up screen with a clock, a frame counter, a moving bar and, while the camera is on,
/// its view. Needs a QGuiApplication, to draw text.
class SetupPicture
{
public:
    /// Both dimensions of @p size are even.
    explicit SetupPicture(const QSize& size);

    const QSize& size() const { return m_size; }
    /// Draws a frame and returns it as NV12.
    const QByteArray& draw(const SetupFlow& flow, const std::optional<CameraView>& camera,
                           quint32 frameNumber);

    /// Colours of six squares, from left to right, by which a test checks the conversion.
    static QList<QRgb> patchColours();
    /// Area of square @p n, in pixels of a picture of @p size.
    static QRect patch(int n, const QSize& size);

private:
    void drawScreen(const SetupFlow& flow);
    void drawHeader(QPainter& painter, const SetupFlow& flow) const;
    void drawButtons(QPainter& painter, const SetupFlow& flow) const;
    void drawPatches(QPainter& painter) const;
    void drawMark(QPainter& painter, const SetupFlow& flow) const;
    void drawCamera(const SetupFlow& flow, const std::optional<CameraView>& camera);
    static void drawRoom(QPainter& painter, const CameraView& camera, const QRect& area);
    void drawMovingParts(quint32 frameNumber);
    QRectF place(const QRectF& fractions) const;
    QRect movingPlace(const QRectF& fractions) const;
    int letters(double fractionOfHeight) const;

    const QSize m_size;
    QImage m_canvas;
    QByteArray m_nv12;
    int m_drawnRevision = -1;
    std::optional<CameraView> m_drawnCamera;
};

} // namespace simulator
