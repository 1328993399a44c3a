// qmllint disable unqualified
import QtQuick
import "../../../qml/pages"

// What a screen reader finds on each page.
PageTest {
    id: test

    name: "Accessible"
    width: 968
    height: 666
    page: faces

    Item {
        id: faces

        anchors.fill: parent

        LoginPage {
            id: loginPage

            anchors.fill: parent
        }

        MainPage {
            id: mainPage

            anchors.fill: parent
            visible: false
        }
    }

    // Qt gives a password field no accessible name.
    function nameOf(item: var): string {
        return item.accessibleName ?? item.Accessible.name;
    }

    // Every control has a name, and the texts inside it are not read a second time.
    function checkItems(item: Item, control: var): void {
        if (!item.visible)
            return;
        if (item.activeFocusOnTab)
            verify(nameOf(item) !== "", item);
        const label = item as Text;
        if (control && label)
            verify(label.Accessible.ignored, label.text);
        else if (label)
            compare(label.Accessible.name, label.text);
        for (let i = 0; i < item.children.length; ++i)
            checkItems(item.children[i], item.activeFocusOnTab ? item : control);
    }

    // Names of the visible controls that take a click or text.
    function usableControls(item: Item): list<string> {
        if (!item.visible)
            return [];
        const names = [];
        if (item.enabled && (item.echoMode !== undefined || item.stepSize !== undefined))
            names.push(nameOf(item));
        else if (item.enabled && item.heldKey !== undefined)
            names.push(nameOf(item.control));
        for (let i = 0; i < item.children.length; ++i)
            names.push(...usableControls(item.children[i]));
        return names.sort();
    }

    // A screen reader finds every control that can be used, once, and no other.
    function checkTree(page: Item): void {
        compare(rig.exposedControls(page), usableControls(page));
    }

    function test_loginPage(): void {
        compare(faces.Window.window.activeFocusItem.Accessible.name, "Sign In");
        for (let form = 0; form <= loginPage.page_id_reset_password_complete; ++form) {
            loginPage.currentPage = form;
            checkItems(loginPage, null);
            checkTree(loginPage);
        }
        loginPage.visible = false;
    }

    function test_mainPage(): void {
        loginPage.visible = false;
        mainPage.visible = true;
        rig.report(21, '{"cmd":21,"seq":1,"type":1,"camerastatus":1}');
        for (let id = 0; id <= mainPage.page_id_settings; ++id) {
            mainPage.currentPage = id;
            for (let face = 0; face < 6; ++face) {
                const current = search(mainPage, item => item.visible && item !== mainPage && item.currentPage !== undefined);
                current.currentPage = face;
                checkItems(mainPage, null);
                checkTree(mainPage);
            }
        }
    }

    function part(name: string): Item {
        return search(faces, item => item[name] !== undefined);
    }

    // Waits until these texts have been spoken, in any order.
    function hear(texts: list<string>): void {
        let heard = "";
        tryVerify(() => {
            heard += rig.takeSpoken().join("\n");
            return texts.every(text => heard.includes(text));
        });
    }

    function test_newsIsSpoken(): void {
        mainPage.visible = false;
        loginPage.visible = true;
        loginPage.currentPage = loginPage.page_id_sign_in;
        loginPage.signIn();
        hear(["Email: The format is incorrect\nPassword: This field is required."]); // as one message
        loginPage.serverResponse = "Invalid email or password";
        hear(["Invalid email or password"]);
        loginPage.str_email = "ada@example.com";
        loginPage.currentPage = loginPage.page_id_reset_password_complete;
        hear(["We sent an email to ada@example.com"]);

        loginPage.visible = false;
        mainPage.visible = true;
        mainPage.currentPage = mainPage.page_id_meetings;
        const meetings = part("page_id_oobe_detected");
        meetings.currentPage = meetings.page_id_oobe_detected;
        meetings.currentPage = meetings.page_id_connected;
        meetings.currentPage = meetings.page_id_connecting;
        part("firstShowDelay").status = "Connecting Microphone";
        hear(["VORN Bar detected", "You are ready on Air", "Connecting Microphone"]);

        mainPage.currentPage = mainPage.page_id_camera_control;
        rig.report(21, '{"cmd":21,"seq":1,"type":1,"camerastatus":1}');
        const presets = part("offerSave");
        tryVerify(() => presets.visible);
        presets.offerSave(visibleChild("preset1"));
        hear(["Save Position"]);

        mainPage.currentPage = mainPage.page_id_settings;
        part("page_id_launcherAppList").currentPage = 0;
        const general = part("hasNewVerion");
        general.currentPage = general.page_id_root;
        general.checkForUpdate();
        general.currentPage = general.page_id_updating;
        general.progress.complete();
        general.currentPage = general.page_id_update_failed;
        hear(["You're up to date.", "Updating your VORN APP", "Update progress 100%", "failed!"]);
    }
}
