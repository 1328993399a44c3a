// qmllint disable unqualified
import QtQuick
import "../../../qml/pages"

// From the sign-in to a launched meeting with the keyboard only.
PageTest {
    id: test

    name: "Keyboard"
    width: 968
    height: 666
    page: faces

    Item {
        id: faces

        anchors.fill: parent

        LoginPage {
            anchors.fill: parent
            visible: !deviceControl.login
        }

        MainPage {
            id: mainPage

            anchors.fill: parent
            visible: deviceControl.login
        }
    }

    function focusItem(): Item {
        return faces.Window.window.activeFocusItem;
    }

    // Presses Tab until an item with that accessible name has the focus.
    function tabTo(name: string): void {
        for (let i = 0; i < 40; ++i) {
            keyClick(Qt.Key_Tab);
            if (focusItem() && focusItem().accessibleName === name)
                return;
        }
        fail("Tab does not reach " + name);
    }

    function typeText(text: string): void {
        for (let i = 0; i < text.length; ++i)
            keyClick(text[i]);
    }

    function test_fromSignInToTheMeeting(): void {
        rig.addAccount({ email: "ada@example.com", password: "Engine1843", firstName: "Ada" });
        shortenStaging();

        tabTo("Email");
        typeText("ada@example.com");
        tabTo("Password");
        typeText("Engine1843");
        tabTo("Sign In");
        keyClick(Qt.Key_Space);
        tryVerify(() => deviceControl.login);

        rig.plug(true, true, true);
        rig.report(0, '{"cmd":0,"type":2,"seq":1,"isReady":1}');
        tryVerify(() => visibleChild("goButton"));
        tryVerify(() => focusItem().accessibleName === "Go");
        keyClick(Qt.Key_Return);
        rig.takeTasks();
        tryVerify(() => focusItem().accessibleName === "ZOOM");
        keyClick(Qt.Key_Return);
        compare(rig.takeTasks(), ["launchZoom"]);
    }

    function test_navigationHighlight(): void {
        deviceControl.setLogin(true);
        tabTo("Camera Control");
        keyClick(Qt.Key_Space);
        compare(mainPage.currentPage, mainPage.page_id_camera_control);
        verify(focusItem().current);
        const cameraEntry = focusItem();
        tabTo("Settings");
        keyClick(Qt.Key_Space);
        compare(mainPage.currentPage, mainPage.page_id_settings);
        verify(!cameraEntry.current);
    }
}
