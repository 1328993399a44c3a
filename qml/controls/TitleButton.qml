import QtQuick

// A button at the window's top edge. The image holds four cells below each other, of which the first is
// shown. An item clips it, because sourceClipRect counts the pixels of the file chosen for the screen's scale.
ControlButton {
    id: button

    property alias source: picture.source

    width: 30
    height: 30

    Item {
        anchors.fill: parent
        anchors.bottomMargin: 1 // empty; at a fractional scale the clip reaches into the next cell
        clip: true

        Image {
            id: picture

            asynchronous: true // decoded while the window is created
        }
    }
}
