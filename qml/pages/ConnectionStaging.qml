import QtQuick

// The staged connection: marks the display's devices as shown one after another once they are connected, and
// reports a time-out. Inputs are the real states (`micConnected`, `spkConnected`, `camConnected`), outputs the
// states shown to the user (`showMicConnected`, `showSpkConnected`, `showCamConnected`).
Item {
    id: staging

    required property bool micConnected
    required property bool spkConnected
    required property bool camConnected
    // True while the connecting face is shown.
    required property bool active

    property bool showMicConnected: false
    property bool showSpkConnected: false
    property bool showCamConnected: false
    readonly property bool connectComplete: showMicConnected && showSpkConnected && showCamConnected
    property bool connectTimeout: false
    property bool blinkState: false
    property string status: ""

    // Milliseconds.
    property int deviceShowInterval: 3000
    property int firstShowDelay: 3000
    property int firstShowInterval: firstShowDelay
    property int connectionTimeout: 30000
    property int blinkOnInterval: 350
    property int blinkOffInterval: 650
    property int completeInterval: 2000
    property int tickInterval: 500
    // Accepts a timer event that is slightly early, so that it does not cost a whole interval.
    property int tickTolerance: 50

    readonly property bool blinking: blinkTimer.running

    // All devices have been shown for `completeInterval`.
    signal finished

    // Current time in milliseconds. A test overrides it.
    function now(): real {
        return Date.now();
    }

    // The display was disconnected; the next connection starts from the beginning.
    function reset(): void {
        staging.status = "";
        staging.showMicConnected = false;
        staging.showSpkConnected = false;
        staging.showCamConnected = false;
        staging.firstShowInterval = staging.firstShowDelay;
    }

    function showNext(): void {
        const first = staging.micConnected && !staging.showMicConnected;
        const second = staging.showMicConnected && staging.spkConnected && !staging.showSpkConnected;
        const third = staging.showMicConnected && staging.showSpkConnected && staging.camConnected
                      && !staging.showCamConnected;
        if (!first && !second && !third)
            return;
        if (isNaN(stagingTimer.startTime)) {
            stagingTimer.startTime = staging.now();
            return;
        }
        const waited = staging.now() - stagingTimer.startTime;
        if (waited + staging.tickTolerance < staging.deviceShowInterval + staging.firstShowInterval)
            return;
        staging.firstShowInterval = 0;
        stagingTimer.startTime = NaN;
        if (first)
            staging.showMicConnected = true;
        else if (second)
            staging.showSpkConnected = true;
        else
            staging.showCamConnected = true;
    }

    function blink(): void {
        staging.blinkState = !staging.blinkState;
        blinkTimer.interval = staging.blinkState ? staging.blinkOnInterval : staging.blinkOffInterval;
        if (isNaN(blinkTimer.startTime)) {
            blinkTimer.startTime = staging.now();
            staging.connectTimeout = false;
        } else if (staging.now() - blinkTimer.startTime >= staging.connectionTimeout) {
            staging.connectTimeout = true;
            staging.status = qsTr("Connection failed. Please reconnect the device.");
            return;
        }
        if (!staging.showMicConnected)
            staging.status = qsTr("Connecting Microphone");
        else if (!staging.showSpkConnected)
            staging.status = qsTr("Connecting Speaker");
        else if (!staging.showCamConnected)
            staging.status = qsTr("Connecting Camera");
    }

    visible: false
    onMicConnectedChanged: {
        if (!micConnected)
            showMicConnected = false;
    }
    onSpkConnectedChanged: {
        if (!spkConnected)
            showSpkConnected = false;
    }
    onCamConnectedChanged: {
        if (!camConnected)
            showCamConnected = false;
    }
    onConnectCompleteChanged: {
        if (connectComplete)
            completeTimer.restart();
    }

    Timer {
        id: stagingTimer

        property real startTime: NaN

        interval: staging.tickInterval
        repeat: true
        triggeredOnStart: true
        running: staging.active && !staging.connectComplete
        onRunningChanged: startTime = NaN
        onTriggered: staging.showNext()
    }

    Timer {
        id: blinkTimer

        property real startTime: NaN

        interval: staging.blinkOffInterval
        repeat: true
        triggeredOnStart: true
        running: staging.active && !staging.connectComplete
        onRunningChanged: startTime = NaN
        onTriggered: staging.blink()
    }

    Timer {
        id: completeTimer

        interval: staging.completeInterval
        onTriggered: {
            if (staging.connectComplete)
                staging.finished();
        }
    }
}
