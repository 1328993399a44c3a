import QtQuick
import QtQuick.Effects

// Stands in for the effect of this name where its module is missing. Brightness turns the source white,
// and colorization gives it the colour.
MultiEffect {
    property color color: "transparent"
    property bool cached: false

    brightness: color.a
    colorization: color.a
    colorizationColor: Qt.rgba(color.r, color.g, color.b, 1)
}
