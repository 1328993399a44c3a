import QtQuick
import QtQuick.Dialogs
import "../controls"
import "../forms"

// The signed-in user's profile: view, edit, picture and sign-out.
Item {
    id: page

    readonly property int page_id_personal_info: 0
    readonly property int page_id_personal_edit: 1
    property int currentPage: page_id_personal_info
    property string serverResponse: ""
    property color serverResponseColor: Theme.errorRed
    // The last selection of the file dialog, even if it was refused. Save sends this file.
    property string chosenFile: ""
    // A save was sent from the form that is shown, and has not ended yet.
    property bool saveSent: false
    property bool busy: false
    // A picture must have fewer bytes.
    readonly property int pictureLimit: 2097152

    readonly property var device: deviceControl // qmllint disable unqualified
    readonly property var service: network // qmllint disable unqualified
    property alias fileDialog: fileDialog
    property alias picturePopup: picturePopup

    function signOut(): void {
        page.currentPage = page.page_id_personal_info;
        page.device.setLogin(false);
    }

    function reload(): void {
        edit.company = page.device.company;
        edit.firstName = page.device.firstName;
        edit.lastName = page.device.lastName;
        edit.title = page.device.title;
        edit.imageSource = page.device.userImage;
        edit.settle();
    }

    function adoptPicture(file: string): void {
        page.chosenFile = file;
        const size = page.service.imageSize(file);
        // The size is negative for files of more than 2 GB.
        if (size < 0 || size >= page.pictureLimit) {
            picturePopup.error = qsTr("The file must be under 2MB.");
            return;
        }
        if (!page.service.isPicture(file)) {
            page.chosenFile = ""; // Save would replace the present picture by none
            picturePopup.refuse();
            return;
        }
        picturePopup.preview = file;
        edit.imageSource = file;
    }

    function save(): void {
        if (page.busy)
            return;
        page.serverResponse = "";
        if (!edit.check())
            return;
        // Without credentials the request is not sent and no reply comes.
        page.saveSent = page.busy = page.device.token !== "" && page.device.userId !== "";
        page.service.profileUpdate(edit.firstName, edit.lastName, edit.company, edit.title, page.chosenFile);
    }

    // Replies to an earlier save concern neither the form opened later nor the next user.
    function forgetSave(): void {
        page.serverResponse = "";
        page.saveSent = page.busy = false;
    }

    onCurrentPageChanged: {
        page.forgetSave();
        page.reload();
        if (page.currentPage === page.page_id_personal_edit)
            edit.focusFirstField();
        else if (page.visible)
            view.focusEdit(); // takes it from the hidden fields
    }
    onVisibleChanged: {
        if (!visible)
            picturePopup.close();
    }

    Connections {
        target: page.device

        // Must not be saved in the next user's profile.
        function onLoginChanged(): void {
            page.chosenFile = "";
            page.forgetSave();
        }
    }

    Connections {
        target: page.service

        function onProfileUpdateSuccess(userData: var): void {
            if (page.saveSent)
                page.currentPage = page.page_id_personal_info;
            page.device.profileUpdateSuccess(userData);
        }
        function onProfileUpdateFailed(error: string): void {
            if (!page.saveSent)
                return;
            page.busy = false;
            page.serverResponse = error;
        }
        function onProfileRequestSuccess(userData: var): void {
            page.device.profileRequestSuccess(userData);
        }
    }

    FileDialog {
        id: fileDialog

        //: Title of the file dialog.
        title: qsTr("select picture")
        //: Name of the kind of files in the file dialog.
        nameFilters: [qsTr("picture file") + " (*.jpg *.jpeg *.png )"]
        onAccepted: page.adoptPicture(String(selectedFile))
    }

    FacePanel {
        ProfileView {
            id: view

            anchors.fill: parent
            visible: page.currentPage === page.page_id_personal_info
            imageSource: page.device.userImage
            name: page.device.firstName + " " + page.device.lastName
            email: page.device.email
            company: page.device.company
            title: page.device.title
            onEditClicked: page.currentPage = page.page_id_personal_edit
        }

        ProfileEdit {
            id: edit

            anchors.fill: parent
            visible: page.currentPage === page.page_id_personal_edit
            imageSource: page.device.userImage
            email: page.device.email
            busy: page.busy
            serverResponse: page.serverResponse
            serverResponseColor: page.serverResponseColor
            onAvatarClicked: picturePopup.open()
            onCanceled: {
                edit.imageSource = page.device.userImage;
                page.currentPage = page.page_id_personal_info;
            }
            onSaveClicked: page.save()
        }

        TextLink {
            objectName: "signOutLink"
            anchors.left: parent.left
            anchors.leftMargin: 60
            y: 428
            text: qsTr("Sign Out")
            maximumWidth: 375 - anchors.leftMargin - 20
            textColor: Theme.quietText
            font.pixelSize: Theme.bodyText
            font.underline: true
            onClicked: page.signOut()
        }

        Flow {
            anchors.left: parent.left
            anchors.leftMargin: 375
            y: 432
            width: parent.width - anchors.leftMargin - 20

            FittedLabel {
                maximumWidth: parent.width
                //: Followed by "coming soon".
                text: qsTr("Digital Namecard Service ")
                font.pixelSize: Theme.smallText
                font.italic: Theme.italic
                color: Theme.textGrey
            }

            FittedLabel {
                maximumWidth: parent.width
                text: qsTr("coming soon")
                font.pixelSize: Theme.smallText
                font.italic: Theme.italic
            }
        }

        PicturePopup {
            id: picturePopup

            x: Theme.mirrored ? parent.width - width - 149 : 149
            y: 59
            onClosed: {
                if (page.visible && edit.visible)
                    edit.focusAvatar();
            }
            onChooseClicked: {
                error = "";
                fileDialog.open();
            }
        }
    }
}
