import QtQuick
import QtQuick.Templates as T

// Shows the whole text of an elided label while the pointer is over it.
Item {
    id: root

    required property Text label
    readonly property bool shown: tip.visible

    anchors.fill: parent
    visible: label.truncated

    HoverHandler {
        id: hover
    }

    T.ToolTip {
        id: tip

        y: root.height + 4
        visible: hover.hovered && root.visible
        delay: 500
        padding: 6
        margins: 6
        implicitWidth: Math.min(implicitContentWidth, 400) + 2 * padding
        implicitHeight: implicitContentHeight + 2 * padding
        text: root.label.text
        contentItem: LatoRegularLabel {
            text: tip.text
            wrapMode: Text.Wrap
            font.pixelSize: Theme.smallText
        }
        background: Rectangle {
            color: Theme.windowColor
            border.width: 1
            border.color: Theme.mutedText
            radius: Theme.panelButtonRadius
        }
    }
}
