// qmllint disable unqualified
import QtQuick
import "../../../qml/pages"

PageTest {
    id: test

    name: "Meetings"
    page: page
    width: 706
    height: 666

    QtObject {
        id: windowHolder

        property var monitorWindow: null
    }

    Meetings {
        id: page

        anchors.fill: parent
        mainWindow: windowHolder
    }

    LauncherAppList {
        id: apps

        y: 1000
        width: 706
        height: 666
    }

    function connectDisplay(): void {
        rig.report(0, '{"cmd":0,"type":2,"seq":1,"isReady":1}');
    }

    function disconnectDisplay(): void {
        rig.report(0, '{"cmd":0,"type":2,"seq":1,"isReady":0}');
        tryCompare(deviceControl, "connectMode", 0);
    }

    function initTestCase(): void {
        shortenStaging();
    }

    function init(): void {
        rig.plug(false, false, false);
        disconnectDisplay();
        compare(page.currentPage, page.page_id_typec_plug);
    }

    function test_fromTheCableToTheMeeting(): void {
        page.connectionTimeout = 30000;
        connectDisplay();
        tryCompare(page, "currentPage", page.page_id_connecting);
        rig.plug(true, false, false);
        tryVerify(() => page.showMicConnected);
        compare(findChild(page, "micIcon").tint, page.connectedColor);
        tryCompare(findChild(page, "connectionStatus"), "text", "Connecting Speaker");
        verify(!page.showSpkConnected);
        rig.plug(true, true, true);
        tryVerify(() => page.connectComplete);
        tryCompare(page, "currentPage", page.page_id_connected);

        rig.takeMessageTexts();
        mouseClick(findChild(page, "goButton"));
        compare(page.currentPage, page.page_id_launch_meeting);
        const commands = rig.takeMessageTexts().map(text => JSON.parse(text).cmd);
        verify(commands.includes(9) && commands.includes(12), commands);

        rig.takeTasks();
        for (const button of ["launchZoom", "launchTeams", "launchGoogle"])
            mouseClick(findChild(page, button));
        compare(rig.takeTasks(), ["launchZoom", "launchTeams", "launchGoogleMeeting"]);
    }

    // The program creates its pages on demand, possibly after the display was connected.
    function test_pageCreatedAfterTheConnection(): void {
        connectDisplay();
        tryCompare(deviceControl, "connectMode", 1);
        const late = createTemporaryObject(latePage, test);
        compare(late.currentPage, late.page_id_connecting);
    }

    Component {
        id: latePage

        Meetings {
            mainWindow: windowHolder
        }
    }

    function test_timeOutTurnsMissingDevicesRed(): void {
        page.connectionTimeout = 100;
        rig.plug(true, false, false);
        connectDisplay();
        tryVerify(() => page.connectTimeout);
        compare(findChild(page, "micIcon").tint, page.connectedColor);
        compare(findChild(page, "spkIcon").tint, page.timeoutColor);
        compare(findChild(page, "camIcon").tint, page.timeoutColor);
        disconnectDisplay();
        compare(findChild(page, "connectionStatus").text, "");
        page.connectionTimeout = 30000;
        connectDisplay();
        tryVerify(() => !page.connectTimeout);
    }

    function test_lastSelectedAppCannotBeUnchecked(): void {
        const boxes = [];
        for (const text of ["Zoom", "Teams", "Google"])
            boxes.push(search(apps, item => item.text === text && item.checked !== undefined));
        verify(deviceControl.supportLaunchZoom && deviceControl.supportLaunchTeams && deviceControl.supportLaunchGoogle);
        for (const box of boxes)
            box.clicked();
        compare([deviceControl.supportLaunchZoom, deviceControl.supportLaunchTeams, deviceControl.supportLaunchGoogle],
                [false, false, true]);
        verify(!findChild(page, "launchZoom").visible);
        boxes[0].clicked();
        boxes[1].clicked();
        verify(deviceControl.supportLaunchZoom && deviceControl.supportLaunchTeams);
    }

    function test_setUpOpensOneMonitorWindow(): void {
        rig.report(0, '{"cmd":0,"type":2,"seq":1,"isReady":2}');
        tryCompare(page, "currentPage", page.page_id_oobe_detected);
        const source = page.monitorSource;
        page.monitorSource = "missing.qml";
        ignoreWarning(/The monitor window cannot be created/);
        mouseClick(findChild(page, "startSetupButton"));
        compare(page.currentPage, page.page_id_oobe_detected);
        verify(shown("The monitor window cannot be opened."));
        page.monitorSource = source;
        mouseClick(findChild(page, "startSetupButton"));
        compare(page.currentPage, page.page_id_oobe_setuping);
        const monitor = windowHolder.monitorWindow;
        verify(monitor);
        page.showMonitorWindow();
        compare(windowHolder.monitorWindow, monitor);
        monitor.close();
        compare(windowHolder.monitorWindow, null);
        compare(page.currentPage, page.page_id_oobe_detected);
    }
}
