// qmllint disable unqualified
import QtQuick
import "../../../qml/pages"

PageTest {
    id: test

    property int quits: 0

    name: "General"
    width: 706
    height: 666
    page: page

    General {
        id: page

        anchors.fill: parent
        quitDelay: 50
        onQuitRequested: ++test.quits
    }

    function init(): void {
        rig.setInstalledVersion("version", "1.0.0");
        rig.setInstalledVersion("newver", "1.0.0");
        tryCompare(page, "currentVersion", "1.0.0");
        tryCompare(page, "newVersion", "1.0.0");
        tryCompare(page, "hasNewVerion", false);
        page.currentPage = page.page_id_root;
        page.progress.timeout = 120000;
    }

    function offerVersion(): void {
        rig.setInstalledVersion("newver", "1.1.0");
        tryCompare(page, "hasNewVerion", true);
    }

    function test_upToDate(): void {
        rig.takeRequests();
        mouseClick(visibleChild("updateButton"));
        verify(shown("You're up to date."));
        compare(rig.takeRequests().length, 0);
        offerVersion();
        verify(shown("New Version:  1.1.0"));
        verify(!shown("You're up to date."));
    }

    function test_offerIsDeclined(): void {
        offerVersion();
        for (const way of ["laterButton", "closeButton"]) {
            mouseClick(visibleChild("updateButton"));
            verify(shown("New Version (1.1.0) Found"));
            verify(!visibleChild("updateButton").enabled);
            verify(visibleChild("updateNowButton").activeFocus);
            mouseClick(visibleChild(way));
            compare(page.currentPage, page.page_id_root);
            verify(visibleChild("updateButton").activeFocus);
        }
    }

    function test_updateRun(): void {
        offerVersion();
        const callsBefore = rig.programCalls().length;
        mouseClick(visibleChild("updateButton"));
        mouseClick(visibleChild("updateNowButton"));
        verify(shown("Updating your VORN APP to New Version (1.1.0)…"));
        for (let i = 0; i < 150; ++i)
            page.progress.step();
        compare(page.progress.value, 99);
        page.progress.timeout = 0;
        page.progress.step();
        compare(page.currentPage, page.page_id_update_failed);
        compare(page.progress.value, 99);
        verify(page.progress.greyed);
        verify(shown("Updating your VORN APP to New Version (1.1.0) failed!"));
        tryVerify(() => rig.programCalls().length > callsBefore);

        page.progress.timeout = 120000;
        mouseClick(visibleChild("retryButton"));
        compare(page.currentPage, page.page_id_updating);
        compare(page.progress.greyed, false);
        test.quits = 0;
        rig.setInstalledVersion("version", "1.1.0");
        // The completion is reported in every pass, but the program quits once.
        tryCompare(test, "quits", 1);
        compare(page.progress.value, 100);
        verify(!page.progress.running);
    }
}
