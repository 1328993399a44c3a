import QtQuick
import "../controls"

// Form to edit the user's profile.
Item {
    id: view

    required property string email
    property alias imageSource: picture.imageSource
    property alias company: companyField.text
    property alias firstName: firstNameField.text
    property alias lastName: lastNameField.text
    property alias title: titleField.text
    property alias busy: saveButton.busy
    property alias serverResponse: responseLabel.text
    property alias serverResponseColor: responseLabel.color

    signal avatarClicked
    signal canceled
    signal saveClicked

    // Checks all fields and marks the invalid ones. True when all are valid.
    function check(): bool {
        const fields = [companyField, firstNameField, lastNameField, titleField];
        for (const field of fields)
            field.checkInputComplete();
        return fields.every(field => field.valid);
    }

    // Clears the marks after the page has filled in the fields.
    function settle(): void {
        for (const field of [companyField, firstNameField, lastNameField, titleField])
            field.settle();
    }

    function focusAvatar(): void {
        avatarButton.forceActiveFocus();
    }

    function focusFirstField(): void {
        firstNameField.forceActiveFocus();
    }

    ControlButton {
        id: avatarButton

        objectName: "avatarEdit"
        anchors.left: parent.left
        anchors.leftMargin: 60
        y: 60
        width: hint.anchors.leftMargin + picture.width + hint.width
        height: picture.height
        accessibleName: qsTr("Change Profile Picture")
        cursorShape: Qt.PointingHandCursor
        onClicked: view.avatarClicked()

        CircularImage {
            id: picture

            anchors.left: parent.left

            Image {
                anchors.centerIn: parent
                source: "qrc:/images/select_image_24x20.png"
            }
        }

        ButtonLabel {
            id: hint

            anchors.left: picture.right
            anchors.leftMargin: 20
            anchors.verticalCenter: picture.verticalCenter
            maximumWidth: firstNameField.anchors.leftMargin - 60 - picture.width - 36
            maximumHeight: picture.height
            text: qsTr("JPG, JPEG or PNG.\nMax size of 2M")
            font.pixelSize: Theme.smallText
            lineHeight: Theme.lineSpacing
            color: Theme.hintText
        }
    }

    ProfileField {
        objectName: "emailField"
        anchors.left: parent.left
        anchors.leftMargin: 60
        y: 187
        caption: qsTr("Email")
        text: view.email
        enabled: false
        color: Theme.disabledGrey
        normalBorderColor: Theme.disabledGrey
        focusBorderColor: Theme.disabledGrey
        errorBorderColor: Theme.disabledGrey
    }

    ProfileField {
        id: firstNameField

        objectName: "firstNameField"
        anchors.left: parent.left
        anchors.leftMargin: 348
        y: 94
        caption: qsTr("First Name")
        errorMessage: qsTr("First Name is required")
        nextFocusItem: lastNameField
    }

    ProfileField {
        id: lastNameField

        objectName: "lastNameField"
        anchors.left: parent.left
        anchors.leftMargin: 348
        y: 187
        caption: qsTr("Last Name")
        errorMessage: qsTr("Last Name is required")
        nextFocusItem: companyField
    }

    ProfileField {
        id: companyField

        objectName: "companyField"
        anchors.left: parent.left
        anchors.leftMargin: 60
        y: 280
        caption: qsTr("Company")
        errorMessage: qsTr("Company is required")
        forbidSpace: false
        nextFocusItem: titleField
    }

    ProfileField {
        id: titleField

        objectName: "titleField"
        anchors.left: parent.left
        anchors.leftMargin: 348
        y: 280
        caption: qsTr("Job Title")
        errorMessage: qsTr("Job Title is required")
        forbidSpace: false
        Component.onCompleted: onEnterAction = () => view.saveClicked()
    }

    LatoRegularLabel {
        id: responseLabel

        anchors.right: saveButton.right
        y: saveButton.y - height - 5
        width: Math.min(implicitWidth, view.width - 2 * 47)
        elide: Text.ElideRight
        maximumLineCount: 1
        font.pixelSize: Theme.noteText
        visible: text !== ""

        Announcement {}
    }

    OutlineButton {
        objectName: "cancelButton"
        anchors.left: parent.left
        anchors.leftMargin: 346
        y: 356
        text: qsTr("Cancel")
        onClicked: view.canceled()
    }

    SubmitButton {
        id: saveButton

        objectName: "saveButton"
        anchors.left: parent.left
        anchors.leftMargin: 456
        y: 356
        width: 100
        radius: Theme.pillRadius
        text: qsTr("Save")
        onSubmitted: view.saveClicked()
    }
}
