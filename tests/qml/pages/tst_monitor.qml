// qmllint disable unqualified
import QtQuick
import QtMultimedia
import "../../../qml"

DisplayTest {
    id: test

    property Monitor monitor: null
    property int closed: 0

    function initTestCase(): void {
        verify(screen.listen());
    }

    function init(): void {
        failOnWarning(/./);
        test.answer(0, "isReady", 2);
        test.closed = 0;
        test.open();
        screen.takeDatagrams();
    }

    function cleanup(): void {
        if (test.monitor)
            test.monitor.destroy();
        tryVerify(() => test.monitor === null);
    }

    // Like the meetings page.
    function create(): void {
        const window = monitorComponent.createObject(null) as Monitor;
        window.closing.connect(() => {
            ++test.closed;
            window.destroy();
        });
        test.monitor = window;
    }

    function open(): void {
        test.create();
        // The window system sets the size of the content later.
        tryVerify(() => test.pointer().width === test.monitor.width);
    }

    function video(): VideoOutput {
        return findChild(test.monitor, "video") as VideoOutput;
    }

    function pointer(): MouseArea {
        return findChild(test.monitor, "pointer") as MouseArea;
    }

    function showFrame(width: int, height: int): void {
        screen.showFrame(test.video().videoSink, width, height);
        tryVerify(() => test.pointer().frame.width === width && test.pointer().frame.height === height);
    }

    // Resizes the window and waits for the window system.
    function resize(width: int, height: int): void {
        test.monitor.width = width;
        test.monitor.height = height;
        tryVerify(() => test.pointer().width === width && test.pointer().height === height);
    }

    function visibleFace(): string {
        let shown = "";
        for (const name of ["video", "waitingFace", "failedFace", "completeFace"])
            shown += findChild(test.monitor, name).visible ? name : "";
        return shown;
    }

    name: "Monitor"

    Component {
        id: monitorComponent

        Monitor {}
    }

    function test_facesFollowTheFrames(): void {
        compare(test.visibleFace(), "waitingFace");
        screen.countFrame();
        compare(test.visibleFace(), "video");
        verify(test.monitor.isPlayed);

        test.monitor.frameTimeout = 30;
        rig.takeSpoken();
        tryVerify(() => test.visibleFace() === "failedFace");
        let heard = "";
        tryVerify(() => (heard += rig.takeSpoken().join()).includes("Connection failed, please reconnect."));
        verify(!test.monitor.isPlayed);
        screen.countFrame();
        compare(test.visibleFace(), "video");
        tryVerify(() => test.visibleFace() === "failedFace");

        // A new window waits for frames of its own.
        test.monitor.close();
        tryVerify(() => test.monitor === null);
        test.open();
        compare(test.visibleFace(), "waitingFace");
        test.monitor.frameTimeout = 30;
        tryVerify(() => test.visibleFace() === "failedFace");
    }

    function test_endOfTheSetup(): void {
        screen.countFrame();
        test.monitor.frameTimeout = 20;
        test.monitor.completeTimeout = 300;
        test.answer(0, "isReady", 1);
        compare(test.visibleFace(), "completeFace");
        screen.countFrame();
        // The watchdog fires in the meantime and changes nothing.
        const faces = new Set();
        tryVerify(() => {
            if (test.monitor)
                faces.add(test.visibleFace());
            return test.closed === 1;
        });
        compare([...faces], ["completeFace"]);
    }

    function test_windowCreatedAfterTheSetUpCloses(): void {
        test.monitor.close();
        tryVerify(() => test.monitor === null);
        test.answer(0, "isReady", 0);
        tryCompare(deviceControl, "connectMode", 0);
        test.create();
        tryCompare(test, "closed", 2);
    }

    // The datagram for a position given in pixels of the picture.
    function datagram(type: int, x: real, width: real, y: real, height: real): string {
        return screen.datagram(type, x, width, y, height);
    }

    function test_holdIsForwarded(): void {
        test.showFrame(1920, 1080);
        mouseMove(test.pointer(), 100, 100);
        mouseMove(test.pointer(), 700, 400);
        compare(screen.takeDatagrams(), []);

        mousePress(test.pointer(), 720, 405);
        compare(screen.takeDatagrams(), ["564f524e0002000b000001003f0000003f000000"]);
        mouseMove(test.pointer(), 1440, 810);
        mouseMove(test.pointer(), 0, 0);
        mouseRelease(test.pointer(), 144, 81);
        compare(screen.takeDatagrams(), [
            test.datagram(2, 1, 1, 1, 1), test.datagram(2, 0, 1, 0, 1), test.datagram(1, 1, 10, 1, 10)
        ]);
        mouseMove(test.pointer(), 700, 400);
        mouseClick(test.pointer(), 720, 405, Qt.RightButton);
        compare(screen.takeDatagrams(), []);

        mouseDoubleClickSequence(test.pointer(), 720, 405);
        compare(screen.takeDatagrams(), [0, 1, 0, 1].map(type => test.datagram(type, 1, 2, 1, 2)));
    }

    function test_holdEndsWithoutARelease_data(): var {
        return [
            { tag: "closed", end: () => test.monitor.close() },
            { tag: "disconnected", end: () => test.answer(0, "isReady", 0) },
            { tag: "destroyed", end: () => test.monitor.destroy() },
            { tag: "hidden", end: () => test.monitor.hide() },
            { tag: "minimised", end: () => test.monitor.showMinimized() },
            { tag: "set up", end: () => test.answer(0, "isReady", 1) },
            { tag: "grab lost", end: () => test.pointer().visible = false }
        ];
    }

    function test_holdEndsWithoutARelease(data: var): void {
        test.showFrame(1920, 1080);
        mousePress(test.pointer(), 144, 81);
        mouseMove(test.pointer(), 288, 81);
        data.end();
        tryVerify(() => !test.monitor || !test.pointer().holding);
        if (test.monitor)
            mouseRelease(test.pointer(), 432, 405);
        compare(screen.takeDatagrams(), [
            test.datagram(0, 1, 10, 1, 10), test.datagram(2, 1, 5, 1, 10), test.datagram(1, 1, 5, 1, 10)
        ]);
    }

    function random(from: int, to: int): int {
        return from + Math.floor(Math.random() * (to - from + 1));
    }

    // The start and length of the centred picture on one axis, and positions inside its edges and just outside them.
    function span(window: real, picture: real): var {
        const start = (window - picture) / 2;
        const first = Math.ceil(start - 1e-9) + 0;
        const last = Math.floor(start + picture + 1e-9);
        return { start: start, length: picture, inside: [first, test.random(first, last), last], outside: [first - 1, last + 1] };
    }

    function test_positionsAtRandomSizes(): void {
        // Smaller than the user's minimum, because the software renderer is slow.
        test.monitor.minimumWidth = 400;
        test.monitor.minimumHeight = 300;
        for (let round = 0; round < 100; ++round) {
            const size = Qt.size(test.random(400, 1000), test.random(300, 700));
            const frame = Qt.size(test.random(160, 1920) * 2, test.random(160, 1080) * 2);
            test.showFrame(frame.width, frame.height);
            test.resize(size.width, size.height);
            const wide = frame.width / frame.height > size.width / size.height;
            const across = test.span(size.width, wide ? size.width : size.height * frame.width / frame.height);
            const down = test.span(size.height, wide ? size.width * frame.height / frame.width : size.height);
            const sizes = `window ${size}, frame ${frame}`;
            for (const x of across.inside) {
                for (const y of down.inside) {
                    const position = test.pointer().getScalePos(x, y);
                    verify(position !== null, `${sizes}: ${x}, ${y}`);
                    fuzzyCompare(position.x, (x - across.start) / across.length, 1e-9, sizes);
                    fuzzyCompare(position.y, (y - down.start) / down.length, 1e-9, sizes);
                }
            }
            for (const i of [0, 1]) {
                compare(test.pointer().getScalePos(across.outside[i], down.inside[1]), null, sizes);
                compare(test.pointer().getScalePos(across.inside[1], down.outside[i]), null, sizes);
            }
        }
    }

    function test_opensAndClosesWhileFramesArrive(): void {
        const windows = screen.windowCount();
        verify(screen.startWriting(320, 180));
        test.closed = 0;
        for (let i = 0; i < 500; ++i) {
            if (!test.monitor)
                test.create();
            const before = deviceControl.frameIndex;
            // Most are closed before the window system has shown them.
            if (i % 20 === 0)
                tryVerify(() => test.monitor.isPlayed && deviceControl.frameIndex > before + 5);
            test.monitor.close();
            tryVerify(() => test.monitor === null);
        }
        screen.stopWriting();
        compare(test.closed, 500);
        compare(screen.windowCount(), windows - 1);
    }
}
