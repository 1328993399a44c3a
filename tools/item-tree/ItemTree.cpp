#include "ItemTree.h"

#include <QColor>
#include <QFont>
#include <QQuickItem>
#include <QRegularExpression>
#include <QTextStream>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace
{

QString number(double value)
{
    return QString::number(value, 'f', 2).remove(QRegularExpression(u"\\.?0+$"_s));
}

/// "QuickButton" of "QuickButton_QMLTYPE_12", "Rectangle" of "QQuickRectangle".
QString typeName(const QQuickItem* item)
{
    QString name = QString::fromLatin1(item->metaObject()->className());
    name = name.section(u"_QML"_s, 0, 0);
    return name.startsWith(u"QQuick"_s) ? name.sliced(6) : name;
}

QString colour(const QColor& value)
{
    return value.name(value.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

void printLook(const QQuickItem* item, QTextStream& out)
{
    const auto property = [item](const char* name) { return item->property(name); };
    if (property("color").canConvert<QColor>())
        out << " colour " << colour(property("color").value<QColor>());
    if (property("radius").toDouble() > 0)
        out << " radius " << number(property("radius").toDouble());
    if (auto* border = property("border").value<QObject*>()) {
        // Reading an unset border creates a black one.
        const QColor edge = border->property("color").value<QColor>();
        if (border->property("width").toDouble() > 0 && edge.alpha() > 0 && edge != Qt::black)
            out << " border " << number(border->property("width").toDouble()) << ' '
                << colour(edge);
    }
    if (property("source").canConvert<QUrl>())
        out << " picture " << property("source").toUrl().fileName();
    if (const QVariant text = property("text"); text.isValid()) {
        const QFont font = property("font").value<QFont>();
        out << " text \"" << text.toString().replace(u'\n', u"\\n"_s) << "\" " << font.family()
            << ' ' << font.pixelSize() << "px";
        if (font.weight() != QFont::Normal)
            out << " weight " << int(font.weight());
        if (font.italic())
            out << " italic";
        if (font.underline())
            out << " underlined";
    }
    if (item->opacity() < 1)
        out << " opacity " << number(item->opacity());
}

void print(const QQuickItem* item, int depth, QTextStream& out)
{
    const QPointF position = item->mapToScene({0, 0});
    out << QString(2 * depth, u' ') << typeName(item);
    if (!item->objectName().isEmpty())
        out << '#' << item->objectName();
    out << " (" << number(position.x()) << ", " << number(position.y()) << ") "
        << number(item->width()) << " x " << number(item->height());
    printLook(item, out);
    if (!item->isVisible())
        out << " [hidden]";
    if (!item->isEnabled())
        out << " [disabled]";
    out << '\n';
    for (const QQuickItem* child : item->childItems())
        print(child, depth + 1, out);
}

} // namespace

void printItemTree(const QQuickItem* item, QTextStream& out)
{
    print(item, 0, out);
}
