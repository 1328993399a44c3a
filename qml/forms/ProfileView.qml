import QtQuick
import "../controls"

// Shows the user's profile.
Item {
    id: view

    required property string imageSource
    required property string name
    required property string email
    required property string company
    required property string title

    signal editClicked

    function focusEdit(): void {
        editLink.forceActiveFocus();
    }

    CircularImage {
        anchors.left: parent.left
        anchors.leftMargin: 60
        y: 60
        imageSource: view.imageSource
    }

    LatoRegularLabel {
        anchors.left: parent.left
        anchors.leftMargin: 164
        y: Math.round(102 - height / 2)
        width: Math.min(implicitWidth, editLink.anchors.leftMargin - anchors.leftMargin - 20)
        text: view.name
        elide: Text.ElideRight
        font.pixelSize: Theme.headingText
        font.weight: Font.Medium
        Accessible.role: Accessible.Heading
    }

    TextLink {
        id: editLink

        objectName: "editLink"
        // A longer text ends inside the frame.
        anchors.left: parent.left
        anchors.leftMargin: Math.min(545, view.width - 24 - width)
        y: 91
        //: Link that lets the user change the profile.
        text: qsTr("Edit")
        font.pixelSize: Theme.bodyText
        onClicked: view.editClicked()
    }

    Column {
        anchors.left: parent.left
        anchors.leftMargin: 60
        y: 168
        spacing: 25

        ProfileRow {
            caption: qsTr("Email")
            value: view.email
        }

        ProfileRow {
            caption: qsTr("Company")
            value: view.company
        }

        ProfileRow {
            caption: qsTr("Job Title")
            value: view.title
        }
    }
}
