import QtQuick

// Outline around its parent while `control` holds the keyboard focus. A pointer press never moves
// the focus to a button, switch or check box, so that the ring is seen only by keyboard users.
Rectangle {
    id: ring

    required property Item control
    property real controlRadius: 0
    readonly property int gap: 2

    x: -gap - border.width
    y: -gap - border.width
    // A control sized by a text can be a fraction of a pixel wide.
    width: Math.ceil(parent.width) - 2 * x
    height: Math.ceil(parent.height) - 2 * y
    radius: controlRadius + gap + border.width
    color: "transparent"
    border.width: 2
    border.color: Theme.green
    visible: control.activeFocus
}
