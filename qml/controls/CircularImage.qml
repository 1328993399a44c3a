import QtQuick
import Qt5Compat.GraphicalEffects

// An image cropped to a circle. Screen readers ignore it unless it has an accessible name.
Item {
    id: root

    property string imageSource: ""
    property string accessibleName: ""

    // The image cannot be read.
    signal failed

    width: 84
    height: width

    Accessible.role: Accessible.Graphic
    Accessible.name: accessibleName
    Accessible.ignored: accessibleName === ""

    Image {
        id: picture

        anchors.fill: parent
        source: root.imageSource
        // A photograph takes seconds and hundreds of megabytes to decode at its full size.
        sourceSize.width: root.width
        sourceSize.height: root.height
        asynchronous: !root.imageSource.startsWith("qrc:")
        autoTransform: true
        fillMode: Image.PreserveAspectCrop
        // Photographs are many times larger than the circle.
        mipmap: true
        visible: false
        onStatusChanged: {
            if (status === Image.Error)
                root.failed();
        }
    }

    Rectangle {
        id: disc

        anchors.fill: parent
        radius: width / 2
        visible: false
    }

    OpacityMask {
        anchors.fill: parent
        source: picture
        maskSource: disc
    }
}
