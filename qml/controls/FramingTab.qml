pragma ComponentBehavior: Bound

import QtQuick

// One half of the framing tab bar: round on its outer side, square where it meets the other half.
Item {
    id: tab

    required property string text
    required property bool roundLeft
    required property bool current
    readonly property color baseColor: Theme.tabGrey
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

    // Drawn as two clipped parts, one with round and one with square corners, because overlapping
    // translucent colours would show. The clip edge is at a whole pixel at a scale of 1.25 too.
    Repeater {
        model: [Theme.pillRadius, 0]

        Item {
            id: part

            required property int modelData
            readonly property bool isRound: modelData > 0
            readonly property int squareWidth: 20

            x: isRound === tab.roundLeft ? 0 : tab.roundLeft ? tab.width - width : squareWidth
            width: isRound ? tab.width - squareWidth : squareWidth
            height: tab.height
            clip: true

            Rectangle {
                x: -part.x
                width: tab.width
                height: tab.height
                radius: part.modelData
                color: tab.fillColor
                border.width: 1
                border.color: tab.baseColor
                antialiasing: true
            }
        }
    }

    CenteredLabel {
        text: tab.text
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
