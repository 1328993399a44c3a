// qmllint disable unqualified
import QtQuick
import "../../../qml"

DisplayTest {
    id: test

    property Monitor monitor: null
    property int closed: 0

    // As the meetings page does.
    function open(): void {
        const window = monitorComponent.createObject(null) as Monitor;
        window.closing.connect(() => {
            ++test.closed;
            window.destroy();
        });
        test.monitor = window;
    }

    name: "MonitorStream"

    Component {
        id: monitorComponent

        Monitor {}
    }

    function test_opensAndClosesWhileFramesFlow(): void {
        failOnWarning(/./);
        const windows = screen.windowCount();
        verify(screen.startWriting(320, 180));
        for (let i = 0; i < 500; ++i) {
            test.open();
            const before = deviceControl.frameIndex;
            // Most close while they are still coming up.
            if (i % 20 === 0)
                tryVerify(() => test.monitor.isPlayed && deviceControl.frameIndex > before + 5);
            test.monitor.close();
            tryVerify(() => test.monitor === null);
        }
        screen.stopWriting();
        compare(test.closed, 500);
        compare(screen.windowCount(), windows);
    }
}
