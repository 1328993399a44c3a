import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Templates as T
import "../controls"

// Pop-up to choose the user's picture.
Popup {
    id: popup

    readonly property var place: windowPlace // qmllint disable unqualified
    readonly property string defaultPicture: "qrc:/images/user_84x84.png"
    property alias preview: picture.imageSource
    property alias error: errorLabel.text

    signal chooseClicked

    // Shows that the chosen file is no picture that can be read.
    function refuse(): void {
        popup.error = qsTr("The picture cannot be read.");
    }

    width: 420
    height: 239
    transformOrigin: Popup.TopLeft
    scale: popup.place.fit // not a child of the page that opens it
    padding: 0
    modal: true
    focus: true
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside
    onClosed: {
        popup.error = "";
        popup.preview = popup.defaultPicture;
    }
    contentItem: Item {}
    // Qt makes the item around the content a dialog for screen readers, and gives it no name.
    Component.onCompleted: popup.contentItem.parent.Accessible.name = Qt.binding(() => heading.text)
    background: Rectangle {
        color: "#383838"
        radius: 8
    }
    // With the same radius as the window below.
    T.Overlay.modal: Rectangle {
        color: "#7F28282A"
        radius: Theme.windowRadius
    }

    FittedLabel {
        id: heading

        anchors.left: parent.left
        anchors.leftMargin: 30
        y: 20
        maximumWidth: popup.width - 2 * anchors.leftMargin
        maximumHeight: 40
        text: qsTr("Change Profile Picture")
        font.pixelSize: Theme.bodyText
        font.weight: Font.Medium
    }

    CircularImage {
        id: picture

        anchors.left: parent.left
        anchors.leftMargin: 50
        y: 65
        imageSource: popup.defaultPicture
        onFailed: popup.refuse()
    }

    FittedLabel {
        anchors.left: parent.left
        anchors.leftMargin: 154
        y: 80
        maximumWidth: popup.width - anchors.leftMargin - 6
        maximumHeight: 54
        text: qsTr("Please select a jpg, jpeg or png image file with\nsize smaller than 2M to upload and crop an\nimage to be your profile picture.")
        font.pixelSize: Theme.smallText
        lineHeight: Theme.lineSpacing
        color: Theme.textGrey
    }

    FittedLabel {
        id: errorLabel

        objectName: "pictureError"
        anchors.left: parent.left
        anchors.leftMargin: 154
        y: 135
        maximumWidth: popup.width - anchors.leftMargin - 6
        maximumHeight: 28
        font.pixelSize: Theme.smallText
        color: Theme.errorRed
        visible: text !== ""

        Announcement {}
    }

    OutlineButton {
        objectName: "chooseFileButton"
        anchors.left: parent.left
        anchors.leftMargin: 30
        y: 163
        width: 124
        height: 31
        outlineColor: Theme.textGrey
        //: Button that opens the file dialog.
        text: qsTr("Choose File")
        textSize: 14
        onClicked: popup.chooseClicked()
    }

    OutlineButton {
        objectName: "closePopupButton"
        anchors.left: parent.left
        anchors.leftMargin: 290
        y: 173
        text: qsTr("Close")
        onClicked: popup.close()
    }
}
