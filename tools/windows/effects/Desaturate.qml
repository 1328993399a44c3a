import QtQuick
import QtQuick.Effects

// Stands in for the effect of this name where its module is missing.
MultiEffect {
    property real desaturation: 0
    property bool cached: false

    saturation: -desaturation
}
