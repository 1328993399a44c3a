import QtQuick
import "../controls"

// The meetings page: follows the cable connection from plugging in to launching a meeting, and guides through
// the display's first set-up.
Item {
    id: page

    readonly property int page_id_typec_plug: 0
    readonly property int page_id_connecting: 1
    readonly property int page_id_connected: 2
    readonly property int page_id_launch_meeting: 3
    readonly property int page_id_oobe_detected: 4
    readonly property int page_id_oobe_setuping: 5
    property int currentPage: page_id_typec_plug

    readonly property color connectedColor: Theme.green
    readonly property color timeoutColor: Theme.errorRed
    readonly property color defaultColor: "transparent"

    readonly property var device: deviceControl // qmllint disable unqualified
    readonly property int connectMode: device.connectMode
    readonly property bool vornMicConnect: device.vornMicStatus && connectMode === 1
    readonly property bool vornSpkConnect: device.vornSpkStatus && connectMode === 1
    readonly property bool vornCamConnect: device.vornCamStatus && connectMode === 1

    property alias showMicConnected: staging.showMicConnected
    property alias showSpkConnected: staging.showSpkConnected
    property alias showCamConnected: staging.showCamConnected
    readonly property bool connectComplete: staging.connectComplete
    property alias connectTimeout: staging.connectTimeout
    property alias deviceShowInterval: staging.deviceShowInterval
    property alias firstShowInterval: staging.firstShowInterval
    property alias connectionTimeout: staging.connectionTimeout
    property alias blinkOnInterval: staging.blinkOnInterval
    property alias blinkOffInterval: staging.blinkOffInterval
    property alias blinkState: staging.blinkState

    // The object that stores the monitor window in `monitorWindow`.
    property var mainWindow: Window.window
    property url monitorSource: "../Monitor.qml"
    property bool monitorFailed: false
    readonly property bool windowShown: Window.visibility !== Window.Hidden && Window.visibility !== Window.Minimized

    function handleConnectModeChanged(mode: int): void {
        if (mode === 1) {
            page.currentPage = page.page_id_connecting;
        } else if (mode === 2) {
            page.currentPage = page.page_id_oobe_detected;
        } else {
            page.currentPage = page.page_id_typec_plug;
            staging.reset();
        }
    }

    // Icon colour; blinks while the device is being connected.
    function tint(shown: bool, connecting: bool): color {
        if (shown)
            return page.connectedColor;
        if (page.connectTimeout)
            return page.timeoutColor;
        const blinks = connecting && staging.blinking;
        return blinks && page.blinkState ? page.connectedColor : page.defaultColor;
    }

    // The same state as text, for screen readers.
    function stateName(shown: bool): string {
        if (shown)
            //: State of the microphone, speaker or camera, for screen readers.
            return qsTr("Connected");
        return page.connectTimeout ? qsTr("Not connected") : "";
    }

    function go(): void {
        page.currentPage = page.page_id_launch_meeting;
        page.device.setByodSwitch(2);
        page.device.startBYOD();
    }

    function startSetup(): void {
        page.device.startSetupBarOOBE();
        page.monitorFailed = !page.showMonitorWindow();
        if (!page.monitorFailed)
            page.currentPage = page.page_id_oobe_setuping;
    }

    // Returns false, with a warning in the log, when the window cannot be created.
    function showMonitorWindow(): bool {
        if (page.mainWindow.monitorWindow) {
            page.mainWindow.monitorWindow.raise();
            page.mainWindow.monitorWindow.requestActivate();
            return true;
        }
        const component = Qt.createComponent(page.monitorSource);
        const monitor = component.status === Component.Ready ? component.createObject(null) : null;
        if (!monitor) {
            console.warn("The monitor window cannot be created: " + component.errorString());
            return false;
        }
        page.mainWindow.monitorWindow = monitor;
        monitor.closing.connect(() => page.dropMonitorWindow());
        return true;
    }

    // Gives the focus to the control of the current face, unless another visible control has it.
    function focusFace(): void {
        const holder = Window.activeFocusItem;
        if (!page.visible || holder?.visible && holder.enabled && holder.activeFocusOnTab)
            return;
        const buttons = [goButton, zoomButton, teamsButton, googleButton, setupButton];
        (buttons.find(button => button.visible) ?? page).forceActiveFocus();
    }

    function dropMonitorWindow(): void {
        page.mainWindow.monitorWindow.destroy();
        page.mainWindow.monitorWindow = null;
        page.handleConnectModeChanged(page.connectMode);
    }

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Meetings")
    onConnectModeChanged: handleConnectModeChanged(connectMode)
    onCurrentPageChanged: {
        page.monitorFailed = false;
        focusTimer.restart();
    }
    onVisibleChanged: focusTimer.restart()

    // Deferred until the face is visible.
    Timer {
        id: focusTimer

        interval: 0
        onTriggered: page.focusFace()
    }

    ConnectionStaging {
        id: staging

        micConnected: page.vornMicConnect
        spkConnected: page.vornSpkConnect
        camConnected: page.vornCamConnect
        active: page.currentPage === page.page_id_connecting
        watched: page.visible && page.windowShown
        onFinished: page.currentPage = page.page_id_connected
    }

    FacePanel {
        // Plug cable.
        Item {
            anchors.fill: parent
            visible: page.currentPage === page.page_id_typec_plug

            Image {
                anchors.horizontalCenter: parent.horizontalCenter
                y: 149
                source: "qrc:/images/typec_plug_444x100.png"
            }

            FaceLabel {
                y: 399
                text: qsTr("Plug in the Type-C cable into your laptop.")
            }
        }

        // Connecting.
        Item {
            anchors.fill: parent
            visible: page.currentPage === page.page_id_connecting

            Image {
                anchors.horizontalCenter: parent.horizontalCenter
                y: 99
                source: "qrc:/images/vorn_141x140.png"
            }

            FaceLabel {
                objectName: "connectionStatus"
                y: 331
                text: staging.status

                Announcement {}
            }

            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                y: 404
                spacing: 72

                StagingIcon {
                    objectName: "micIcon"
                    source: "qrc:/images/mic_16x25.png"
                    accessibleName: qsTr("Microphone")
                    tint: page.tint(page.showMicConnected, true)
                    accessibleState: page.stateName(page.showMicConnected)
                }

                StagingIcon {
                    objectName: "spkIcon"
                    source: "qrc:/images/spk_27x21.png"
                    accessibleName: qsTr("Speaker")
                    tint: page.tint(page.showSpkConnected, page.showMicConnected)
                    accessibleState: page.stateName(page.showSpkConnected)
                }

                StagingIcon {
                    objectName: "camIcon"
                    source: "qrc:/images/cam_27x17.png"
                    accessibleName: qsTr("Camera")
                    tint: page.tint(page.showCamConnected, page.showMicConnected && page.showSpkConnected)
                    accessibleState: page.stateName(page.showCamConnected)
                }
            }
        }

        // Connected.
        Item {
            anchors.fill: parent
            visible: page.currentPage === page.page_id_connected

            // The glow is an image, because a blur effect compiles its shaders at the start.
            Image {
                anchors.centerIn: readyLogo
                source: "qrc:/images/glow_173x172.png"
            }

            Image {
                id: readyLogo

                anchors.horizontalCenter: parent.horizontalCenter
                y: 99
                source: "qrc:/images/vorn_141x140.png"
            }

            FaceLabel {
                y: 277
                //: All devices of the display are connected.
                text: qsTr("You are ready on Air")

                Announcement {}
            }

            FaceButton {
                id: goButton

                objectName: "goButton"
                y: 364
                width: 163
                //: Button that begins the use of the display's devices.
                text: qsTr("Go")
                onClicked: page.go()
            }
        }

        // Launch meeting.
        Item {
            anchors.fill: parent
            visible: page.currentPage === page.page_id_launch_meeting

            FaceLabel {
                y: 74
                text: qsTr("Launch your meeting")
            }

            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                y: 195
                spacing: 60

                LauncherButton {
                    id: zoomButton

                    objectName: "launchZoom"
                    text: qsTr("ZOOM")
                    visible: page.device.supportLaunchZoom
                    onClicked: page.device.launchZoom()
                }

                LauncherButton {
                    id: teamsButton

                    objectName: "launchTeams"
                    text: qsTr("Teams")
                    visible: page.device.supportLaunchTeams
                    onClicked: page.device.launchTeams()
                }

                LauncherButton {
                    id: googleButton

                    objectName: "launchGoogle"
                    text: qsTr("Google\n  Meet")
                    visible: page.device.supportLaunchGoogle
                    onClicked: page.device.launchGoogleMeeting()
                }
            }
        }

        // Set-up detected.
        Item {
            anchors.fill: parent
            visible: page.currentPage === page.page_id_oobe_detected

            FaceLabel {
                y: 94
                text: qsTr("VORN Bar detected")

                Announcement {}
            }

            Image {
                anchors.horizontalCenter: parent.horizontalCenter
                y: 203
                source: "qrc:/images/VORNBar_360x45.png"
            }

            FaceButton {
                id: setupButton

                objectName: "startSetupButton"
                y: 318
                width: 160
                //: Button that begins the first set-up of the display.
                text: qsTr("Start Setup")
                onClicked: page.startSetup()
            }

            FaceLabel {
                y: setupButton.y + setupButton.height + 20
                text: qsTr("The monitor window cannot be opened.")
                font.pixelSize: Theme.noteText
                color: page.timeoutColor
                visible: page.monitorFailed
                Accessible.role: Accessible.StaticText

                Announcement {}
            }
        }

        // Set-up running.
        Item {
            anchors.fill: parent
            visible: page.currentPage === page.page_id_oobe_setuping

            FaceLabel {
                y: 124
                text: qsTr("VORN Bar is being set up...")

                Announcement {}
            }

            Image {
                anchors.horizontalCenter: parent.horizontalCenter
                y: 233
                source: "qrc:/images/VORNBar_360x45.png"
            }
        }
    }
}
