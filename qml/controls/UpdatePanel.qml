import QtQuick

// The white panel of the program's update: offer, progress and failure.
Rectangle {
    id: panel

    property bool closable: true
    property string accessibleName: ""

    signal closeClicked

    width: 540
    height: 280
    radius: Theme.panelRadius
    border.width: 1
    border.color: "lightgrey"
    Accessible.role: Accessible.Dialog
    Accessible.name: accessibleName

    ControlButton {
        objectName: "closeButton"
        anchors.top: parent.top
        anchors.topMargin: 10
        anchors.right: parent.right
        anchors.rightMargin: 10
        width: 20
        height: 20
        visible: panel.closable
        focusColor: Theme.focusOnWhite
        //: Button that closes the panel, for screen readers.
        accessibleName: qsTr("Close")
        onClicked: panel.closeClicked()

        Image {
            source: "qrc:/images/close.png"
        }
    }
}
