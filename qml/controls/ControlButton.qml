import QtQuick

// A button without a background. Its content changes its opacity on hover and press.
Rectangle {
    id: button

    property real enterOpacity: 0.6
    property real exitedOpacity: 1
    property real pressedOpacity: 0.4
    property alias focusColor: ring.ringColor
    property alias longPresse: area.longPresse
    property alias autoRepeat: area.autoRepeat
    property alias triggeredOnStart: area.triggeredOnStart
    property alias repeatInterval: area.repeatInterval
    property alias cursorShape: area.cursorShape
    property string accessibleName: area.contentText

    signal clicked
    signal pressed
    signal released
    signal triggered

    color: "transparent"
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.focusable: true
    Accessible.ignored: !enabled
    Accessible.onPressAction: area.press()
    Keys.forwardTo: [area]

    PressArea {
        id: area

        function rest(): void {
            button.opacity = area.containsMouse ? button.enterOpacity : button.exitedOpacity;
        }

        control: button
        onEntered: {
            if (area.heldKey === 0)
                button.opacity = button.enterOpacity;
        }
        onExited: {
            if (area.heldKey !== 0)
                return;
            button.opacity = button.exitedOpacity;
            area.stopRepeat();
            // A camera movement has to stop when the pointer leaves the held button.
            if (area.pointerHeld)
                button.released();
        }
        onPressed: {
            button.opacity = button.pressedOpacity;
            button.pressed();
            area.startRepeat();
        }
        onReleased: {
            area.rest();
            area.stopRepeat();
            button.released();
        }
        onClicked: button.clicked()
        onCanceled: {
            area.rest();
            area.stopRepeat();
            // A cancelled press gets no release event.
            button.released();
        }
        onTriggered: button.triggered()

        FocusRing {
            id: ring

            control: button
            controlRadius: button.radius
        }
    }
}
