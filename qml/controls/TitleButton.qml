import QtQuick

// A button at the window's top edge. Its picture holds more cells than the first one, which it shows;
// a source clip would count the pixels of whichever file the screen's scale chose.
ControlButton {
    id: button

    property alias source: picture.source

    width: 30
    height: 30

    Item {
        anchors.fill: parent
        clip: true

        Image {
            id: picture

            asynchronous: true // the window is made meanwhile
        }
    }
}
