import QtQuick

// Left-button input on a picture that is fitted into this area. Emits press, move and release inside the
// picture. If the grab is lost, emits a release at the last position.
MouseArea {
    id: pointer

    readonly property int type_press: 0
    readonly property int type_release: 1
    readonly property int type_move: 2

    // Source rectangle of the picture; its size gives the aspect ratio.
    required property rect frame
    property bool holding: false
    // Last position emitted since the press, null when there is none.
    property var lastPosition: null

    // `position` is a fraction of the picture's size, from 0 to 1 on both axes.
    signal pointerEvent(type: int, position: point)

    // Position of (x, y) as fractions of the picture's size; null outside. The edges count as inside.
    function getScalePos(x: real, y: real): var {
        const frame = pointer.frame;
        if (!(frame.width > 0 && frame.height > 0 && pointer.width > 0 && pointer.height > 0))
            return null;
        // All lengths are multiplied by `unit`, which makes them whole numbers. Only the final division
        // rounds, so a pointer on an edge yields exactly 0 or 1.
        const spansWidth = frame.width * pointer.height > pointer.width * frame.height;
        const unit = spansWidth ? frame.width : frame.height;
        const span = spansWidth ? pointer.width : pointer.height;
        const position = Qt.point(pointer.fraction(x * unit, pointer.width * unit, span * frame.width),
                                  pointer.fraction(y * unit, pointer.height * unit, span * frame.height));
        const isInside = position.x >= 0 && position.x <= 1 && position.y >= 0 && position.y <= 1;
        return isInside ? position : null;
    }

    // Relative position within a span that is centred in a longer length.
    function fraction(position: real, length: real, span: real): real {
        return (2 * position - (length - span)) / (2 * span);
    }

    function report(type: int, mouse: MouseEvent): void {
        const position = pointer.getScalePos(mouse.x, mouse.y);
        if (position === null)
            return;
        pointer.lastPosition = position;
        pointer.pointerEvent(type, position);
    }

    function endHold(): void {
        const position = pointer.holding ? pointer.lastPosition : null;
        pointer.holding = false;
        if (position !== null)
            pointer.pointerEvent(pointer.type_release, position);
    }

    acceptedButtons: Qt.LeftButton
    Accessible.role: Accessible.Graphic
    //: Name of the picture of that screen, for screen readers.
    Accessible.name: qsTr("The display's screen")
    onPressed: mouse => {
        pointer.holding = true;
        pointer.lastPosition = null;
        pointer.report(pointer.type_press, mouse);
    }
    onPositionChanged: mouse => {
        if (pointer.holding)
            pointer.report(pointer.type_move, mouse);
    }
    onReleased: mouse => {
        if (!pointer.holding)
            return;
        pointer.holding = false;
        pointer.report(pointer.type_release, mouse);
    }
    onCanceled: pointer.endHold()
}
