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
        id: mainWindow

        property var monitorWindow: null
    }

    Meetings {
        id: page

        anchors.fill: parent
        mainWindow: mainWindow
        staging.tickInterval: 5
        staging.tickTolerance: 1
        deviceShowInterval: 20
        staging.firstShowDelay: 20
        staging.completeInterval: 20
        blinkOnInterval: 4
        blinkOffInterval: 6
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

    function init(): void {
        rig.plug(false, false, false);
        disconnectDisplay();
        rig.takeMessages();
        rig.takeTasks();
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

        rig.takeMessages();
        mouseClick(findChild(page, "goButton"));
        compare(page.currentPage, page.page_id_launch_meeting);
        const ids = rig.takeMessages().map(message => message.id);
        verify(ids.includes(9), ids);
        verify(ids.includes(12), ids);

        rig.takeTasks();
        for (const button of ["launchZoom", "launchTeams", "launchGoogle"])
            mouseClick(findChild(page, button));
        compare(rig.takeTasks(), ["launchZoom", "launchTeams", "launchGoogleMeeting"]);
    }

    // The program makes its pages when they are needed, which may be after the display came.
    function test_madeWhileADisplayIsThere(): void {
        connectDisplay();
        tryCompare(deviceControl, "connectMode", 1);
        const late = createTemporaryObject(latePage, test);
        compare(late.currentPage, late.page_id_connecting);
    }

    Component {
        id: latePage

        Meetings {
            mainWindow: mainWindow
        }
    }

    function test_timeOutTurnsWhatIsMissingRed(): void {
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

    function test_lastAppStays(): void {
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

    function test_setUpOpensTheMonitorWindowOnce(): void {
        rig.report(0, '{"cmd":0,"type":2,"seq":1,"isReady":2}');
        tryCompare(page, "currentPage", page.page_id_oobe_detected);
        mouseClick(findChild(page, "startSetupButton"));
        compare(page.currentPage, page.page_id_oobe_setuping);
        const monitor = mainWindow.monitorWindow;
        verify(monitor);
        page.showMonitorWindow();
        compare(mainWindow.monitorWindow, monitor);
        monitor.close();
        compare(mainWindow.monitorWindow, null);
        compare(page.currentPage, page.page_id_oobe_detected);
    }
}
