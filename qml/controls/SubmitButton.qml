import QtQuick

// Sends a form. While the request runs the button is busy: it shows moving dots and submits nothing.
QuickButton {
    id: button

    property alias text: label.text
    property bool busy: false

    signal submitted

    height: 36
    radius: 10
    Accessible.description: busy ? qsTr("Please wait") : ""
    onClicked: {
        if (!button.busy)
            button.submitted();
    }

    ButtonLabel {
        id: label

        anchors.centerIn: parent
        font.pixelSize: Theme.bodyText
        opacity: button.busy ? 0.5 : 1
    }

    Loader {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 4
        active: button.busy
        source: "BusyDots.qml"
    }
}
