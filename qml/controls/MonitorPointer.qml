import QtQuick

// The left button on a picture that fits into this area. What it does inside the picture is told; a
// hold that is taken away without a release ends at the last place told.
MouseArea {
    id: pointer

    readonly property int type_press: 0
    readonly property int type_release: 1
    readonly property int type_move: 2

    // The picture's own size.
    required property rect frame
    property bool holding: false
    // The last place told in this hold.
    property var lastPlace: null

    // `place` is given as fractions of the picture's size, from 0 to 1.
    signal told(type: int, place: point)

    // The place of (x, y) in the picture; null outside it, whose edges are inside.
    function getScalePos(x: real, y: real): var {
        const frame = pointer.frame;
        if (!(frame.width > 0 && frame.height > 0 && pointer.width > 0 && pointer.height > 0))
            return null;
        // Measured in pixels divided by `unit` all lengths are whole, so that only the last division
        // rounds, and a pointer on an edge is on it exactly.
        const spansWidth = frame.width * pointer.height > pointer.width * frame.height;
        const unit = spansWidth ? frame.width : frame.height;
        const span = spansWidth ? pointer.width : pointer.height;
        const place = Qt.point(pointer.fraction(x * unit, pointer.width * unit, span * frame.width),
                               pointer.fraction(y * unit, pointer.height * unit, span * frame.height));
        const isInside = place.x >= 0 && place.x <= 1 && place.y >= 0 && place.y <= 1;
        return isInside ? place : null;
    }

    // Where a position lies on a stretch that is centred in a longer one.
    function fraction(position: real, length: real, stretch: real): real {
        return (2 * position - (length - stretch)) / (2 * stretch);
    }

    function tell(type: int, mouse: MouseEvent): void {
        const place = pointer.getScalePos(mouse.x, mouse.y);
        if (place === null)
            return;
        pointer.lastPlace = place;
        pointer.told(type, place);
    }

    function letGo(): void {
        const place = pointer.holding ? pointer.lastPlace : null;
        pointer.holding = false;
        if (place !== null)
            pointer.told(pointer.type_release, place);
    }

    acceptedButtons: Qt.LeftButton
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("The display's screen")
    onPressed: mouse => {
        pointer.holding = true;
        pointer.lastPlace = null;
        pointer.tell(pointer.type_press, mouse);
    }
    onPositionChanged: mouse => {
        if (pointer.holding)
            pointer.tell(pointer.type_move, mouse);
    }
    onReleased: mouse => {
        if (!pointer.holding)
            return;
        pointer.holding = false;
        pointer.tell(pointer.type_release, mouse);
    }
    onCanceled: pointer.letGo()
}
