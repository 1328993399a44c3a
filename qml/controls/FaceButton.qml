import QtQuick

// The main button of a face of the meetings page.
QuickButton {
    id: button

    property alias text: label.text

    anchors.horizontalCenter: parent?.horizontalCenter
    height: 36
    radius: Theme.pillRadius

    CenteredLabel {
        id: label
    }
}
