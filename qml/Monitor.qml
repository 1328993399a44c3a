import QtQuick
import QtMultimedia
import "controls"

// Shows the display's screen live during its first set-up and forwards the pointer. The creator destroys
// the window when it closes.
Window {
    id: monitor

    readonly property int page_id_monitor: 0
    readonly property int page_id_waiting: 1
    readonly property int page_id_failed: 2
    readonly property int page_id_complete: 3
    property int currentPage: page_id_waiting

    readonly property var device: deviceControl // qmllint disable unqualified
    // With room for the title bar.
    readonly property real fit: windowPlace.fitOf(Qt.size(1440, 850)) // qmllint disable unqualified
    readonly property int connectMode: device.connectMode
    readonly property int frameIndex: device.frameIndex
    // At least one frame has arrived since the last failure.
    property bool isPlayed: false
    // Milliseconds: without a frame until the failure face is shown, and for which the complete face is shown.
    property int frameTimeout: 5000
    property int completeTimeout: 3000

    function start(): void {
        monitor.isPlayed = false;
        monitor.currentPage = monitor.page_id_waiting;
        frameTimer.restart();
        monitor.device.setVideoSink(video.videoSink);
        monitor.device.monitorPlay(true);
    }

    function followConnectMode(): void {
        if (monitor.connectMode === 1 && monitor.isPlayed)
            monitor.currentPage = monitor.page_id_complete;
        else if (monitor.connectMode === 0 || monitor.connectMode === 1)
            monitor.close();
    }

    function stop(): void {
        monitor.device.monitorPlay(false);
        monitor.device.setVideoSink(null);
    }

    minimumWidth: 1440 * fit
    minimumHeight: 810 * fit
    width: minimumWidth
    height: minimumHeight
    //: Title of the window: the name of a product.
    title: qsTr("VORN Bar")
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true
    color: Theme.windowColor
    visible: true

    onFrameIndexChanged: {
        monitor.isPlayed = true;
        if (monitor.currentPage === monitor.page_id_complete)
            return;
        monitor.currentPage = monitor.page_id_monitor;
        frameTimer.restart();
    }
    onConnectModeChanged: followConnectMode()
    onVisibilityChanged: {
        if (monitor.visibility === Window.Hidden || monitor.visibility === Window.Minimized)
            pointer.endHold();
    }
    onClosing: pointer.endHold()

    // The mode can change while the window is being created. Deferred, because the creator connects to `closing`
    // after that.
    Timer {
        interval: 0
        running: true
        onTriggered: monitor.followConnectMode()
    }

    Timer {
        id: frameTimer

        interval: monitor.frameTimeout
        onTriggered: {
            if (monitor.currentPage === monitor.page_id_complete)
                return;
            monitor.currentPage = monitor.page_id_failed;
            monitor.isPlayed = false;
        }
    }

    Timer {
        interval: monitor.completeTimeout
        running: monitor.currentPage === monitor.page_id_complete
        onTriggered: monitor.close()
    }

    VideoOutput {
        id: video

        objectName: "video"
        anchors.fill: parent
        fillMode: VideoOutput.PreserveAspectFit
        smooth: true
        visible: monitor.currentPage === monitor.page_id_monitor
        Component.onCompleted: monitor.start()
        Component.onDestruction: {
            pointer.endHold();
            monitor.stop();
        }

        MonitorPointer {
            id: pointer

            objectName: "pointer"
            anchors.fill: parent
            focus: monitor.visible
            frame: video.sourceRect
            onPointerEvent: (type, position) => monitor.device.getMouseEvent(type, position.x, position.y)
        }
    }

    FittedLabel {
        objectName: "waitingFace"
        anchors.centerIn: parent
        maximumWidth: parent.width - 80
        font.weight: Font.Bold
        visible: monitor.currentPage === monitor.page_id_waiting
        text: qsTr("Connecting, please wait.")
        font.pixelSize: Theme.monitorText

        Announcement {}
    }

    MonitorFace {
        objectName: "failedFace"
        anchors.fill: parent
        visible: monitor.currentPage === monitor.page_id_failed
        source: "qrc:/images/oobe_error_74x74.png"
        text: qsTr("Connection failed, please reconnect.")
    }

    MonitorFace {
        objectName: "completeFace"
        anchors.fill: parent
        visible: monitor.currentPage === monitor.page_id_complete
        source: "qrc:/images/oobe_complete_95x66.png"
        //: The page is this window, which closes by itself too.
        text: qsTr("Setup complete. You may now close this page.")
    }
}
