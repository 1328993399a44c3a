import QtQuick

// Sends a form. While the request runs the button is busy: it shows moving dots and submits nothing.
QuickButton {
    id: button

    property alias text: label.text
    property bool busy: false

    signal submitted

    height: 36
    radius: 10
    //: State of a button while a request runs, for screen readers.
    Accessible.description: busy ? qsTr("Please wait") : ""
    onClicked: {
        if (!button.busy)
            button.submitted();
    }

    CenteredLabel {
        id: label

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
