import QtQuick
import Qt5Compat.GraphicalEffects

// Device icon on the connecting face, tinted by the state of the device. A transparent tint keeps the
// image's own colour.
Item {
    id: root

    property alias source: picture.source
    property alias tint: overlay.color
    property string accessibleName: ""
    property string accessibleState: ""

    width: picture.width
    height: picture.height
    Accessible.role: Accessible.Graphic
    Accessible.name: accessibleName
    Accessible.description: accessibleState

    Image {
        id: picture
    }

    ColorOverlay {
        id: overlay

        anchors.fill: picture
        source: picture
    }
}
