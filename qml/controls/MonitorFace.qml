import QtQuick

// An image above a text, centred in the monitor window.
Item {
    property alias source: picture.source
    property alias text: label.text

    Image {
        id: picture

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: label.top
        anchors.bottomMargin: 60
    }

    LatoBoldLabel {
        id: label

        anchors.centerIn: parent
        font.pixelSize: Theme.monitorText
        Accessible.role: Accessible.AlertMessage
    }
}
