import QtQuick
import VORNApp as Vorn

// Translates the arrow, plus and minus keys into camera movements that last while the key is held. The
// panel forwards its key events to this item. Only one movement is active; another key replaces it.
Item {
    id: keys

    // True while the panel has the focus and therefore gets the key releases.
    required property bool focused
    // The active movement, -1 when there is none.
    property int heldMovement: -1

    readonly property HeldKey repeats: HeldKey {
        onReleased: keys.end()
    }

    signal started(movement: int)
    signal ended(movement: int)

    // A key and its shifted symbol are equal: the release may report either of them.
    function movementOf(key: int): int {
        switch (key) {
        case Qt.Key_Plus:
        case Qt.Key_Equal:
            return Vorn.CameraControl.Manual_ZoomIn;
        case Qt.Key_Minus:
        case Qt.Key_Underscore:
            return Vorn.CameraControl.Manual_ZoomOut;
        case Qt.Key_Up:
            return Vorn.CameraControl.Manual_Up;
        case Qt.Key_Down:
            return Vorn.CameraControl.Manual_Down;
        case Qt.Key_Left:
            return Vorn.CameraControl.Manual_Left;
        case Qt.Key_Right:
            return Vorn.CameraControl.Manual_Right;
        default:
            return -1;
        }
    }

    function end(): void {
        if (keys.heldMovement < 0)
            return;
        const movement = keys.heldMovement;
        keys.heldMovement = -1;
        keys.repeats.ignoreRelease();
        keys.ended(movement);
    }

    // The key release will not arrive here any more.
    onFocusedChanged: {
        if (!keys.focused)
            keys.end();
    }
    onVisibleChanged: {
        if (!keys.visible)
            keys.end();
    }
    onEnabledChanged: {
        if (!keys.enabled)
            keys.end();
    }

    Keys.onPressed: event => {
        const movement = keys.movementOf(event.key);
        const chord = event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier);
        if (!keys.enabled || !keys.visible || chord || movement < 0)
            return;
        event.accepted = true;
        if (movement === keys.heldMovement)
            keys.repeats.ignoreRelease();
        if (event.isAutoRepeat || movement === keys.heldMovement)
            return;
        keys.end();
        keys.heldMovement = movement;
        keys.repeats.press();
        keys.started(movement);
    }
    Keys.onReleased: event => {
        const movement = keys.movementOf(event.key);
        if (movement < 0 || movement !== keys.heldMovement)
            return;
        event.accepted = true;
        if (!event.isAutoRepeat)
            keys.repeats.release();
    }
}
