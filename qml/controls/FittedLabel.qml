import QtQuick

// A text in a place of limited size, since translations may be longer than the English text. It wraps, then
// shrinks to no less than 80 %, then is elided and shown whole in a tooltip.
LatoRegularLabel {
    id: label

    property real maximumWidth: Infinity
    property real maximumHeight: Infinity
    property WholeText tip: null

    width: Math.min(implicitWidth, maximumWidth)
    height: Math.min(implicitHeight, maximumHeight)
    wrapMode: maximumWidth < Infinity ? Text.WordWrap : Text.NoWrap
    fontSizeMode: Text.Fit
    minimumPixelSize: Math.ceil(0.8 * font.pixelSize)
    elide: Text.ElideRight
    // Created when it is first needed, since English never needs one.
    onTruncatedChanged: {
        if (truncated && !tip)
            tip = Qt.createComponent("WholeText.qml").createObject(label, { label: label });
    }
}
