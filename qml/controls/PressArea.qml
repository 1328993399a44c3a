import QtQuick

// Input handling of a button: turns pointer and key presses on `control` into one set of signals and
// repeats long presses. The control forwards its key events to this item. Child items lie over the control.
//
// This item has no size, so that it does not count in the childrenRect of a button sized by its content.
// The MouseArea inside covers the whole control.
Item {
    id: area

    default property alias cover: pointer.data
    required property Item control
    property bool longPresse: false
    property bool autoRepeat: false
    property bool triggeredOnStart: false
    property int repeatInterval: 300
    property alias cursorShape: pointer.cursorShape

    readonly property bool containsMouse: pointer.containsMouse
    readonly property bool pointerHeld: pointer.pressed
    // The key that holds the button, 0 when none does.
    property int heldKey: 0
    readonly property HeldKey repeats: HeldKey {
        onReleased: area.endPress()
    }
    readonly property bool focused: control.activeFocus
    // The text inside the button, used as accessible name when the page sets none.
    readonly property string contentText: textIn(control).replace(/\s+/g, " ")

    signal entered
    signal exited
    signal pressed
    signal released
    signal clicked
    signal canceled
    signal triggered

    // A complete press and release, for the press action of a screen reader.
    function press(): void {
        if (!area.enabled)
            return;
        area.pressed();
        area.released();
        area.clicked();
    }

    function startRepeat(): void {
        if (area.longPresse)
            repeatTimer.restart();
    }

    function stopRepeat(): void {
        repeatTimer.stop();
    }

    function isPressKey(event: KeyEvent): bool {
        const chord = event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier);
        return !chord && [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter].includes(event.key);
    }

    function dropKey(): void {
        if (area.heldKey === 0)
            return;
        area.heldKey = 0;
        area.repeats.ignoreRelease();
        area.released();
    }

    function endPress(): void {
        area.dropKey();
        area.clicked();
    }

    function textIn(item: Item): string {
        const label = item as Text;
        if (label)
            return label.text;
        for (let i = 0; i < item.children.length; ++i) {
            const text = area.textIn(item.children[i]);
            if (text !== "")
                return text;
        }
        return "";
    }

    // The key release will not arrive any more. A hidden item keeps the focus, but gets no key events.
    onFocusedChanged: {
        if (!area.focused)
            area.dropKey();
    }
    onVisibleChanged: {
        if (!area.visible)
            area.dropKey();
    }

    Keys.onPressed: (event) => {
        if (!area.enabled || !area.isPressKey(event))
            return;
        event.accepted = true;
        if (event.key === area.heldKey)
            area.repeats.ignoreRelease();
        if (event.isAutoRepeat || area.heldKey !== 0 || pointer.pressed)
            return;
        area.heldKey = event.key;
        area.repeats.press();
        area.pressed();
    }
    Keys.onReleased: (event) => {
        if (event.key !== area.heldKey)
            return;
        event.accepted = true;
        if (!event.isAutoRepeat)
            area.repeats.release();
    }

    MouseArea {
        id: pointer

        width: area.control.width
        height: area.control.height
        hoverEnabled: true
        onEntered: area.entered()
        onExited: area.exited()
        onPressed: {
            area.dropKey();
            area.pressed();
        }
        onReleased: area.released()
        onClicked: area.clicked()
        onCanceled: area.canceled()
    }

    Timer {
        id: repeatTimer

        interval: area.repeatInterval
        repeat: area.autoRepeat
        triggeredOnStart: area.triggeredOnStart
        onTriggered: area.triggered()
    }
}
