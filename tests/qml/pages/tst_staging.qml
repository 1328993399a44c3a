// qmllint disable unqualified
import QtQuick
import QtTest
import "../../../qml/pages"

// The times of the staging, with a clock that the test sets.
TestCase {
    id: test

    property real time: 0
    property bool mic: true
    property bool spk: true
    property bool cam: true
    property bool active: false
    property var shownAt: []

    name: "ConnectionStaging"

    ConnectionStaging {
        id: staging

        micConnected: test.mic
        spkConnected: test.spk
        camConnected: test.cam
        active: test.active
        onShowMicConnectedChanged: test.shownAt.push(test.time)
        onShowSpkConnectedChanged: test.shownAt.push(test.time)
        onShowCamConnectedChanged: test.shownAt.push(test.time)
    }

    function runFor(milliseconds: real): void {
        const end = test.time + milliseconds;
        while (test.time < end) {
            test.time += 50;
            if (test.time % 500 === 0)
                staging.showNext();
            if (test.time % 1000 === 0 || test.time % 1000 === 650)
                staging.blink();
        }
    }

    function init(): void {
        test.active = false;
        staging.reset();
        test.mic = test.spk = test.cam = true;
        test.shownAt = [];
        test.time = 0;
    }

    function wakeUps(): var {
        return Array.from(staging.resources).filter(timer => timer.running && timer.repeat).map(timer => timer.interval);
    }

    function test_timersRestWhileNothingBlinks(): void {
        start();
        compare(wakeUps().length, 2);
        staging.watched = false;
        compare(wakeUps(), [1000]);
        staging.watched = true;
        test.cam = false;
        runFor(31000);
        verify(staging.connectTimeout);
        compare(wakeUps(), []);
        test.cam = true;
        compare(wakeUps(), [1000]);
    }

    // Starts the timers, whose first tick comes at once.
    function start(): void {
        test.active = true;
        staging.showNext();
        staging.blink();
    }

    function test_presentDevicesAreShownInOrder(): void {
        start();
        runFor(15000);
        compare(test.shownAt, [6000, 9500, 13000]);
    }

    function test_lostDeviceClearsOnlyItsOwnState(): void {
        start();
        runFor(10000);
        verify(staging.showSpkConnected);
        test.mic = false;
        verify(!staging.showMicConnected);
        verify(staging.showSpkConnected);
        runFor(1000);
        compare(staging.status, "Connecting Microphone");
        test.mic = true;
        runFor(20000);
        verify(staging.connectComplete);
    }

    function test_completionAfterTheTimeOut(): void {
        test.cam = false;
        start();
        runFor(29500);
        compare(staging.status, "Connecting Camera");
        verify(!staging.connectTimeout);
        runFor(1000);
        verify(staging.connectTimeout);
        compare(staging.status, "Connection failed. Please reconnect the device.");
        test.cam = true;
        runFor(4000);
        verify(staging.connectComplete);
    }

    function test_reconnectionWaitsForTheFirstDeviceAgain(): void {
        start();
        runFor(7000);
        verify(staging.showMicConnected);
        test.active = false;
        staging.reset();
        compare(staging.status, "");
        const again = test.time;
        start();
        runFor(7000);
        compare(test.shownAt[2] - again, 6000);
    }
}
