import QtQuick

// A filled button whose colour follows hover and press. After a long press, which emits `triggered`, the
// release does not click.
Rectangle {
    id: button

    property color normalColor: Theme.buttonGreen
    property color hoverColor: "#a04DAF4E"
    property color pressedColor: "#604DAF4E"
    property alias focusColor: ring.ringColor
    property alias longPresse: area.longPresse
    property alias autoRepeat: area.autoRepeat
    property alias triggeredOnStart: area.triggeredOnStart
    property alias repeatInterval: area.repeatInterval
    property bool isLongPressed: false
    property string accessibleName: area.contentText

    signal clicked
    signal pressed
    signal released
    signal triggered

    width: 20
    height: width
    radius: 10
    color: normalColor
    activeFocusOnTab: true
    // Pages bind normalColor to a selection state, which must be visible while the pointer is over the button.
    onNormalColorChanged: color = normalColor

    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.focusable: true
    Accessible.ignored: !enabled
    Accessible.onPressAction: area.press()
    Keys.forwardTo: [area]

    PressArea {
        id: area

        function rest(): void {
            button.color = area.containsMouse ? button.hoverColor : button.normalColor;
        }

        control: button
        repeatInterval: 700
        onEntered: {
            if (area.heldKey === 0)
                button.color = button.hoverColor;
        }
        onExited: {
            if (area.heldKey !== 0)
                return;
            button.color = button.normalColor;
            area.stopRepeat();
            button.isLongPressed = false;
        }
        onPressed: {
            button.color = button.pressedColor;
            button.pressed();
            button.isLongPressed = false;
            area.startRepeat();
        }
        onReleased: {
            area.rest();
            area.stopRepeat();
            button.released();
        }
        onClicked: {
            if (!button.isLongPressed)
                button.clicked();
        }
        onCanceled: {
            area.rest();
            area.stopRepeat();
            button.isLongPressed = false;
            console.log("cancel");
        }
        onTriggered: {
            button.isLongPressed = true;
            button.triggered();
        }

        FocusRing {
            id: ring

            control: button
            controlRadius: button.radius
        }
    }
}
