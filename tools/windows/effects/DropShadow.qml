import QtQuick
import QtQuick.Effects

// Stands in for the effect of this name where its module is missing.
MultiEffect {
    property color color: "black"
    property int samples: 9
    property real radius: samples / 2
    property real spread: 0
    property real horizontalOffset: 0
    property real verticalOffset: 0
    property bool transparentBorder: true
    property bool cached: false

    autoPaddingEnabled: transparentBorder
    shadowEnabled: true
    shadowColor: color
    shadowBlur: Math.min(1, radius / 32) // MultiEffect blurs 32 pixels at most
    shadowHorizontalOffset: horizontalOffset
    shadowVerticalOffset: verticalOffset
}
