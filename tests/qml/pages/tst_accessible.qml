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

    // Every control has a name, and the texts inside it are not read a second time.
    function checkItems(item: Item, control: var): void {
        if (!item.visible)
            return;
        if (item.activeFocusOnTab)
            verify(item.Accessible.name !== "", item);
        const label = item as Text;
        if (control && label)
            verify(label.Accessible.ignored, label.text);
        for (let i = 0; i < item.children.length; ++i)
            checkItems(item.children[i], item.activeFocusOnTab ? item : control);
    }

    function test_loginPage(): void {
        compare(faces.Window.window.activeFocusItem.Accessible.name, "Sign In");
        for (let form = 0; form <= loginPage.page_id_reset_password_complete; ++form) {
            loginPage.currentPage = form;
            checkItems(loginPage, null);
        }
        loginPage.visible = false;
    }

    function test_mainPage(): void {
        mainPage.visible = true;
        rig.report(21, '{"cmd":21,"seq":1,"type":1,"camerastatus":1}');
        for (let id = 0; id <= mainPage.page_id_settings; ++id) {
            mainPage.currentPage = id;
            for (let face = 0; face < 6; ++face) {
                const current = search(mainPage, item => item.visible && item !== mainPage && item.currentPage !== undefined);
                current.currentPage = face;
                checkItems(mainPage, null);
            }
        }
    }
}
