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
    // True while the user can see the stages.
    property bool watched: true

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

    readonly property bool waiting: active && !connectComplete
    // When nothing blinks, one timer event per second is enough, and none while there is nothing to count.
    readonly property bool slow: !watched || connectTimeout
    readonly property bool blinking: blinkTimer.running
    readonly property bool micNext: micConnected && !showMicConnected
    readonly property bool spkNext: showMicConnected && spkConnected && !showSpkConnected
    readonly property bool camNext: showMicConnected && showSpkConnected && camConnected && !showCamConnected
    // After the time-out, time counts only for a device that is shown next.
    readonly property bool counting: !connectTimeout || micNext || spkNext || camNext
                                     || (deviceWait >= 0 && deviceWait < deviceShowInterval + firstShowInterval)
    // Milliseconds waited for the next device and for all devices, -1 before the first tick. They are sums of timer
    // intervals, which follow a monotonic clock.
    property int deviceWait: -1
    property int totalWait: -1

    // All devices have been shown for `completeInterval`.
    signal finished

    // The display was disconnected; the next connection starts from the beginning.
    function reset(): void {
        staging.status = "";
        staging.showMicConnected = false;
        staging.showSpkConnected = false;
        staging.showCamConnected = false;
        staging.firstShowInterval = staging.firstShowDelay;
    }

    function showNext(): void {
        if (staging.deviceWait >= 0)
            staging.deviceWait += staging.tickInterval;
        if (!staging.micNext && !staging.spkNext && !staging.camNext)
            return;
        if (staging.deviceWait < 0)
            staging.deviceWait = 0;
        if (staging.deviceWait < staging.deviceShowInterval + staging.firstShowInterval)
            return;
        staging.firstShowInterval = 0;
        staging.deviceWait = -1;
        if (staging.micNext)
            staging.showMicConnected = true;
        else if (staging.spkNext)
            staging.showSpkConnected = true;
        else
            staging.showCamConnected = true;
    }

    function blink(): void {
        const elapsed = staging.blinkState ? staging.blinkOnInterval : staging.blinkOffInterval;
        staging.totalWait = staging.totalWait < 0 ? 0 : staging.totalWait + elapsed;
        staging.blinkState = !staging.blinkState;
        if (staging.totalWait > 0 && staging.totalWait >= staging.connectionTimeout) {
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
    onWaitingChanged: {
        staging.deviceWait = staging.totalWait = -1;
        if (staging.waiting)
            staging.connectTimeout = false;
    }
    onConnectCompleteChanged: {
        if (connectComplete)
            completeTimer.restart();
    }

    Timer {
        id: stagingTimer

        interval: staging.tickInterval
        repeat: true
        triggeredOnStart: true
        running: staging.waiting && !staging.slow
        onTriggered: staging.showNext()
    }

    Timer {
        id: blinkTimer

        interval: staging.blinkState ? staging.blinkOnInterval : staging.blinkOffInterval
        repeat: true
        triggeredOnStart: true
        running: staging.waiting && !staging.slow
        onTriggered: staging.blink()
    }

    // Replaces the two timers above while nothing blinks: two ticks and a whole blink at a time.
    Timer {
        interval: 2 * staging.tickInterval
        repeat: true
        running: staging.waiting && staging.slow && staging.counting
        onTriggered: {
            for (let i = 0; i < 2; ++i) {
                staging.showNext();
                if (!staging.connectTimeout)
                    staging.blink();
            }
        }
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
