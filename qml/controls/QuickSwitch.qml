import QtQuick

// An animated switch. Only the owner changes `checked`, in answer to `clicked`.
Rectangle {
    id: root

    property bool checked: false
    property color handleColor: Theme.white
    property color normalColor: Theme.offGrey
    property color checkedColor: Theme.switchGreen
    property real handleRadius: radius
    property real handleHeight: height
    property real handleSpacing: (height - handleHeight) / 2
    property int duration: 300
    readonly property bool isAnimating: colorAnimation.running || slide.running
    property string accessibleName: ""

    signal clicked

    width: 100
    height: 40
    radius: height / 2
    color: checked ? checkedColor : normalColor
    activeFocusOnTab: true

    Accessible.role: Accessible.CheckBox
    Accessible.name: accessibleName
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.focusable: true
    Accessible.onPressAction: area.press()
    Accessible.onToggleAction: area.press()
    Keys.forwardTo: [area]

    Behavior on color {
        enabled: !Theme.reducedMotion

        ColorAnimation {
            id: colorAnimation

            duration: root.duration
        }
    }

    Rectangle {
        id: handle

        x: root.checked !== Theme.mirrored ? root.width - width - root.handleSpacing : root.handleSpacing
        anchors.verticalCenter: parent.verticalCenter
        width: root.handleHeight
        height: root.handleHeight
        radius: root.handleRadius
        color: root.handleColor

        Behavior on x {
            enabled: !Theme.reducedMotion

            NumberAnimation {
                id: slide

                duration: root.duration
            }
        }
    }

    PressArea {
        id: area

        control: root
        enabled: !root.isAnimating
        onClicked: root.clicked()

        FocusRing {
            control: root
            controlRadius: root.radius
        }
    }
}
