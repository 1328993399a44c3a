import QtQuick
import QtQuick.Effects

// Stands in for the effect of this name where its module is missing.
Item {
    id: root

    property alias source: effect.source
    property alias maskSource: mask.sourceItem
    property alias invert: effect.maskInverted
    property bool cached: false

    ShaderEffectSource {
        id: mask

        anchors.fill: parent
        visible: false
    }

    MultiEffect {
        id: effect

        anchors.fill: parent
        maskEnabled: true
        maskSource: mask
        // The mask's alpha is applied as it is, not as a threshold.
        maskThresholdMin: 0.5
        maskSpreadAtMin: 1
    }
}
