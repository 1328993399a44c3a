// qmllint disable unqualified
import QtQuick
import QtTest
import "../../../qml/pages"

PageTest {
    id: test

    readonly property string defaultPicture: "qrc:/images/user_84x84.png"

    name: "Personal"
    width: 706
    height: 666
    page: page

    Personal {
        id: page

        anchors.fill: parent
    }

    function initTestCase(): void {
        rig.addAccount({ email: "ada@example.com", password: "Engine1843", firstName: "Ada", lastName: "Byron",
                         company: "Analytical Engines", title: "Countess" });
    }

    function init(): void {
        network.login("ada@example.com", "Engine1843");
        signIn.wait();
        page.currentPage = page.page_id_personal_info;
        compare(deviceControl.firstName, "Ada");
    }

    // Like the login page.
    SignalSpy {
        id: signIn

        target: network
        signalName: "loginSuccess"
    }

    Connections {
        target: network

        function onLoginSuccess(userData: var): void {
            deviceControl.loginSuccess(userData);
        }
    }

    function openEdit(): void {
        click("Edit");
        compare(page.currentPage, page.page_id_personal_edit);
    }

    function choose(file: string): void {
        page.fileDialog.selectedFile = file;
        page.fileDialog.accepted();
    }

    function test_editAndSave(): void {
        openEdit();
        compare(visibleChild("companyField").text, "Analytical Engines");
        verify(!visibleChild("emailField").enabled);
        type("titleField", "Lady of Numbers");
        type("firstNameField", "Augusta Ada");
        compare(visibleChild("firstNameField").text, "AugustaAda");
        click("Save");
        tryCompare(page, "currentPage", page.page_id_personal_info);
        tryCompare(deviceControl, "title", "Lady of Numbers");
        compare(rig.account("ada@example.com").title, "Lady of Numbers");
        verify(shown("AugustaAda Byron"));
        saveFirstName("Ada");
    }

    function saveFirstName(text: string): void {
        openEdit();
        type("firstNameField", text);
        click("Save");
        tryCompare(page, "currentPage", page.page_id_personal_info);
        tryCompare(deviceControl, "firstName", text);
    }

    function test_emptyFieldIsNotSent(): void {
        openEdit();
        rig.takeRequests();
        type("companyField", "");
        click("Save");
        verify(shown("Company is required"));
        compare(rig.takeRequests().length, 0);
        click("Cancel");
        openEdit();
        compare(visibleChild("companyField").text, "Analytical Engines");
        verify(!shown("Company is required"));
    }

    function test_refusedPictureIsStillSent(): void {
        const small = rig.makePicture("small 100%.png", 1000);
        const large = rig.makePicture("large.png", 2097152);
        openEdit();
        mouseClick(visibleChild("avatarEdit"));
        tryVerify(() => page.picturePopup.opened);
        choose(small);
        compare(decodeURI(page.picturePopup.preview), decodeURI(small));
        choose(rig.makePicture("cut.png", 10));
        compare(page.picturePopup.error, "The picture cannot be read.");
        compare(page.chosenFile, ""); // an empty picture would be sent
        choose(large);
        compare(page.picturePopup.error, "The file must be under 2MB.");
        compare(decodeURI(page.picturePopup.preview), decodeURI(small));
        keyClick(Qt.Key_Escape);
        tryVerify(() => !page.picturePopup.visible);
        compare(page.picturePopup.preview, test.defaultPicture);
        verify(visibleChild("avatarEdit").activeFocus);
        compare(page.picturePopup.error, "");
        // The refused file stays the dialog's selection.
        rig.truncatePicture("large.png");
        click("Save");
        tryCompare(page, "currentPage", page.page_id_personal_info);
        verify(deviceControl.userImage.startsWith("data:image/png;base64,"));
    }

    function test_cancelDropsThePreview(): void {
        const small = rig.makePicture("small.png", 1000);
        const before = deviceControl.userImage;
        openEdit();
        mouseClick(visibleChild("avatarEdit"));
        tryVerify(() => page.picturePopup.opened);
        choose(small);
        page.picturePopup.close();
        tryVerify(() => !page.picturePopup.visible);
        click("Cancel");
        compare(deviceControl.userImage, before);
    }

    function test_serviceRefuses(): void {
        openEdit();
        rig.endSessions("ada@example.com");
        rig.takeRequests();
        page.save();
        page.save(); // without an event in between, as the reply comes fast
        verify(visibleChild("saveButton").busy);
        tryVerify(() => page.serverResponse !== "");
        compare(rig.takeRequests().length, 1);
        verify(shown(page.serverResponse) && !visibleChild("saveButton").busy);
        click("Save");
        click("Cancel");
        compare(page.serverResponse, "");
        verify(visibleChild("editLink").activeFocus);
        network.profileUpdateFailed("of the form that was left");
        compare(page.serverResponse, "");
    }

    function test_hiddenFieldGetsNoKeys(): void {
        openEdit();
        const field = visibleChild("titleField");
        field.forceActiveFocus();
        const before = field.text;
        rig.takeRequests();
        page.visible = false;
        keyClick("x");
        keyClick(Qt.Key_Return);
        page.visible = true;
        compare(field.text, before);
        compare(rig.takeRequests().length, 0);
    }

    function test_signOut(): void {
        openEdit();
        choose(rig.makePicture("hers.png", 1000));
        verify(page.chosenFile !== "");
        click("Sign Out");
        compare(page.currentPage, page.page_id_personal_info);
        compare(deviceControl.login, false);
        compare(deviceControl.email, "");
        compare(deviceControl.userImage, test.defaultPicture);
        // Must not be saved in the next user's profile.
        compare(page.chosenFile, "");
    }
}
