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

/// Draws the set-up screen, with a clock, a counter of the frames, something that moves and what
/// the camera sees while it is on. Needs a QGuiApplication, for the letters.
class SetupPicture
{
public:
    /// @p size is even in both directions.
    explicit SetupPicture(const QSize& size);

    const QSize& size() const { return m_size; }
    /// The next frame as NV12.
    const QByteArray& draw(const SetupFlow& flow, const std::optional<CameraView>& camera,
                           quint32 frameNumber);

    /// Colours to measure what comes out at the other end, six squares from left to right.
    static QList<QRgb> patchColours();
    /// Place of the n-th of them, in pixels of a picture of that size.
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
