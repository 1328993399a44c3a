#include "PageTexts.h"

#include <QColor>
#include <QQuickItem>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace
{

// Letters may reach a part of a pixel over the edge of their text.
constexpr double Tolerance = 1;

struct Text {
    const QQuickItem* item;
    QRectF place;
    QString quoted;
};

bool hasAncestor(const QQuickItem* item, const QQuickItem* ancestor)
{
    while (item && item != ancestor)
        item = item->parentItem();
    return item;
}

/// The part of a text's item that its letters take, in the window.
QRectF placeOf(const QQuickItem* item)
{
    const double width = item->property("contentWidth").toDouble();
    const double height = item->property("contentHeight").toDouble();
    const int alignment = item->property("effectiveHorizontalAlignment").toInt() |
                          item->property("verticalAlignment").toInt();
    QRectF place(0, 0, width, height);
    if (alignment & Qt::AlignRight)
        place.moveRight(item->width());
    else if (alignment & Qt::AlignHCenter)
        place.moveLeft((item->width() - width) / 2);
    if (alignment & Qt::AlignBottom)
        place.moveBottom(item->height());
    else if (alignment & Qt::AlignVCenter)
        place.moveTop((item->height() - height) / 2);
    return item->mapRectToScene(place);
}

bool isFrame(const QQuickItem* item)
{
    if (item->clip() || !item->parentItem())
        return true;
    if (!item->inherits("QQuickRectangle"))
        return false;
    const auto* border = item->property("border").value<QObject*>();
    return item->property("color").value<QColor>().alpha() > 0 ||
           border->property("color").value<QColor>().alpha() > 0;
}

bool isObstacle(const QQuickItem* item)
{
    return item->activeFocusOnTab() ||
           (item->inherits("QQuickImage") && !item->property("source").toUrl().isEmpty());
}

bool collide(const QRectF& a, const QRectF& b)
{
    const QRectF common = a & b;
    return common.width() > Tolerance && common.height() > Tolerance;
}

void collect(const QQuickItem* item, QList<Text>& texts, QList<const QQuickItem*>& obstacles)
{
    if (!item->isVisible() || item->opacity() <= 0)
        return;
    const QString text = item->property("text").toString();
    if (item->inherits("QQuickText") && !text.isEmpty())
        texts += {item, placeOf(item), u'"' + text.simplified() + u'"'};
    else if (isObstacle(item))
        obstacles += item;
    for (const QQuickItem* child : item->childItems())
        collect(child, texts, obstacles);
}

/// The child of the window's root that an item is in: a page, or the layer of the popups.
const QQuickItem* layerOf(const QQuickItem* item)
{
    while (item->parentItem() && item->parentItem()->parentItem())
        item = item->parentItem();
    return item;
}

} // namespace

QStringList misplacedTexts(const QQuickItem* root)
{
    QList<Text> texts;
    QList<const QQuickItem*> obstacles;
    collect(root, texts, obstacles);
    QStringList faults;
    for (const Text& text : texts) {
        if (text.item->property("truncated").toBool())
            faults += text.quoted + u" is elided"_s;
        for (const QQuickItem* frame = text.item; frame; frame = frame->parentItem()) {
            const QRectF inside = frame->mapRectToScene(frame->boundingRect());
            if (isFrame(frame) &&
                !inside.adjusted(-Tolerance, -Tolerance, Tolerance, Tolerance).contains(text.place))
                faults += u"%1 leaves its %2"_s.arg(
                    text.quoted, QLatin1String(frame->metaObject()->className()));
        }
        for (const Text& other : texts)
            if (&other > &text && layerOf(other.item) == layerOf(text.item) &&
                collide(other.place, text.place))
                faults += text.quoted + u" lies on "_s + other.quoted;
        for (const QQuickItem* obstacle : obstacles)
            if (!hasAncestor(text.item, obstacle) && layerOf(obstacle) == layerOf(text.item) &&
                collide(obstacle->mapRectToScene(obstacle->boundingRect()), text.place))
                faults += u"%1 lies on a %2"_s.arg(
                    text.quoted, QLatin1String(obstacle->metaObject()->className()));
    }
    return faults;
}
