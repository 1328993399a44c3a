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

    FittedLabel {
        id: label

        anchors.centerIn: parent
        maximumWidth: parent.width - 80
        horizontalAlignment: Text.AlignHCenter
        font.weight: Font.Bold
        font.pixelSize: Theme.monitorText

        Announcement {}
    }
}
