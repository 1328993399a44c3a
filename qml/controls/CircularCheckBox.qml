import QtQuick

// A round check box with a label. Only the owner changes `checked`, in answer to `clicked`.
Item {
    id: root

    property bool checked: false
    property color normalColor: Theme.white
    property color checkedColor: Theme.switchGreen
    property real size: 16
    property string text: ""
    property real spacing: 12
    property string accessibleName: text

    signal clicked

    width: size + spacing + label.width
    height: label.height
    activeFocusOnTab: true

    Accessible.role: Accessible.CheckBox
    Accessible.name: accessibleName
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.focusable: true
    Accessible.onPressAction: area.press()
    Accessible.onToggleAction: area.press()
    Keys.forwardTo: [area]

    Rectangle {
        id: circle

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: root.size
        height: width
        radius: width / 2
        color: root.normalColor
        border.width: 2
        border.color: root.checked ? root.checkedColor : root.normalColor

        Behavior on border.color {
            enabled: !Theme.reducedMotion

            ColorAnimation {
                duration: 200
            }
        }

        Rectangle {
            anchors.centerIn: parent
            // Aligning to whole pixels makes the dot wobble while it grows.
            anchors.alignWhenCentered: false
            width: root.checked ? circle.width * 0.5 : 0
            height: width
            radius: width / 2
            color: root.checkedColor

            Behavior on width {
                enabled: !Theme.reducedMotion

                NumberAnimation {
                    duration: 200
                    easing.type: Easing.OutBack
                    easing.overshoot: 1.5
                }
            }
        }

        FocusRing {
            control: root
            controlRadius: circle.radius
        }
    }

    ButtonLabel {
        id: label

        anchors.left: circle.right
        anchors.leftMargin: root.spacing
        text: root.text
        font.pixelSize: Theme.bodyText
    }

    PressArea {
        id: area

        control: root
        cursorShape: Qt.PointingHandCursor
        onClicked: root.clicked()
    }
}
