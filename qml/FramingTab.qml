import QtQuick

// One half of the framing tab bar: round on its outer side, square where it meets the other half.
Item {
    id: tab

    required property string text
    required property bool roundLeft
    required property bool current
    readonly property color baseColor: "#28D8D8D8"
    readonly property color fillColor: {
        if (tab.current)
            return tab.baseColor;
        if (area.pointerHeld || area.heldKey !== 0)
            return Qt.darker(tab.baseColor, 1.5);
        return area.containsMouse ? Qt.darker(tab.baseColor, 2.0) : "transparent";
    }

    signal clicked

    width: 180
    height: 36
    activeFocusOnTab: true

    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: current
    Accessible.onPressAction: area.press()
    Keys.forwardTo: [area]

    // The round part reaches past the square side and is cut there, one pixel short of the edge; the
    // edge is a line of its own, since translucent colours must not overlap.
    Item {
        x: tab.roundLeft ? 0 : 1
        width: tab.width - 1
        height: tab.height
        clip: true

        Rectangle {
            x: tab.roundLeft ? 0 : -radius
            width: parent.width + radius
            height: parent.height
            radius: 18
            color: tab.fillColor
            border.width: 1
            border.color: tab.baseColor
        }
    }

    Rectangle {
        x: tab.roundLeft ? tab.width - 1 : 0
        width: 1
        height: tab.height
        color: tab.baseColor
    }

    LatoRegularLabel {
        anchors.centerIn: parent
        text: tab.text
        font.pixelSize: 16
    }

    PressArea {
        id: area

        control: tab
        onClicked: tab.clicked()

        FocusRing {
            control: tab
        }
    }
}
