import QtQuick

// Outline around its parent while `control` has the keyboard focus. Pointer presses do not focus buttons,
// switches or check boxes, so only keyboard users see it.
Rectangle {
    id: ring

    required property Item control
    property real controlRadius: 0
    property color ringColor: Theme.green
    readonly property int gap: 2

    x: -gap - border.width
    y: -gap - border.width
    // The size of a control that follows its text can be fractional.
    width: Math.ceil(parent.width) - 2 * x
    height: Math.ceil(parent.height) - 2 * y
    radius: controlRadius + gap + border.width
    color: "transparent"
    border.width: 2
    border.color: ringColor
    visible: control.activeFocus
}
