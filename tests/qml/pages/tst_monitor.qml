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

    // As the meetings page does.
    function open(): void {
        const window = monitorComponent.createObject(null) as Monitor;
        window.closing.connect(() => {
            ++test.closed;
            window.destroy();
        });
        test.monitor = window;
        // The contents get their size when the window system answers.
        tryVerify(() => test.pointer().width === window.width);
    }

    function video(): VideoOutput {
        return findChild(test.monitor, "video") as VideoOutput;
    }

    function pointer(): MouseArea {
        return findChild(test.monitor, "pointer") as MouseArea;
    }

    function showFrame(width: int, height: int): void {
        screen.showFrame(test.video().videoSink, width, height);
        tryVerify(() => test.video().sourceRect.width === width && test.video().sourceRect.height === height);
    }

    // A window of this size, which the window system may give only after a while.
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
        compare([test.monitor.frameTimeout, test.monitor.completeTimeout], [5000, 3000]);
        compare([test.monitor.width, test.monitor.height, test.monitor.title], [1440, 810, "VORN Bar"]);
        compare(test.visibleFace(), "waitingFace");
        screen.countFrame();
        compare(test.visibleFace(), "video");
        verify(test.monitor.isPlayed);

        test.monitor.frameTimeout = 30;
        tryVerify(() => test.visibleFace() === "failedFace");
        verify(!test.monitor.isPlayed);
        screen.countFrame();
        compare(test.visibleFace(), "video");
        tryVerify(() => test.visibleFace() === "failedFace");

        // A window that opens after others had frames starts anew.
        test.monitor.close();
        tryVerify(() => test.monitor === null);
        test.open();
        compare(test.visibleFace(), "waitingFace");
        verify(!test.monitor.isPlayed);
    }

    function test_noFirstFrameFails(): void {
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
        compare(test.visibleFace(), "completeFace");
        // The watchdog fires meanwhile and changes nothing.
        const faces = [];
        tryVerify(() => {
            if (test.monitor)
                faces.push(test.visibleFace());
            return test.closed === 1;
        });
        compare(faces.filter(face => face !== "completeFace"), []);
    }

    function test_otherModesCloseAtOnce_data(): var {
        return [
            { tag: "set up before any frame", played: false, mode: 1 },
            { tag: "set up after a failure", played: true, mode: 1 },
            { tag: "disconnected", played: false, mode: 0 }
        ];
    }

    function test_otherModesCloseAtOnce(data: var): void {
        if (data.played) {
            screen.countFrame();
            test.monitor.frameTimeout = 1;
            tryVerify(() => test.visibleFace() === "failedFace");
        }
        test.answer(0, "isReady", data.mode);
        compare(test.closed, 1);
    }

    // Datagrams of a picture in which x and y are given in pixels.
    function told(type: int, x: real, width: real, y: real, height: real): string {
        return screen.datagram(type, x, width, y, height);
    }

    function test_holdIsTold(): void {
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
            test.told(2, 1, 1, 1, 1), test.told(2, 0, 1, 0, 1), test.told(1, 1, 10, 1, 10)
        ]);
        mouseMove(test.pointer(), 700, 400);
        mouseClick(test.pointer(), 720, 405, Qt.RightButton);
        compare(screen.takeDatagrams(), []);

        mouseDoubleClickSequence(test.pointer(), 720, 405);
        compare(screen.takeDatagrams(), [0, 1, 0, 1].map(type => test.told(type, 1, 2, 1, 2)));
    }

    function test_barsAreSilent(): void {
        // 45 pixels above and below.
        test.showFrame(1920, 1080);
        test.resize(1440, 900);
        mouseClick(test.pointer(), 720, 44);
        mouseClick(test.pointer(), 720, 856);
        compare(screen.takeDatagrams(), []);
        mouseClick(test.pointer(), 720, 45);
        mouseClick(test.pointer(), 720, 855);
        compare(screen.takeDatagrams(), [0, 1].map(type => test.told(type, 1, 2, 0, 1))
            .concat([0, 1].map(type => test.told(type, 1, 2, 1, 1))));

        mousePress(test.pointer(), 720, 450);
        mouseMove(test.pointer(), 720, 20);
        mouseRelease(test.pointer(), 720, 20);
        compare(screen.takeDatagrams(), [test.told(0, 1, 2, 1, 2)]);
        test.monitor.hide();
        compare(screen.takeDatagrams(), []);
    }

    function test_facesAreSilent(): void {
        mouseClick(test.monitor.contentItem, 720, 405);
        test.showFrame(1920, 1080);
        test.monitor.frameTimeout = 1;
        screen.countFrame();
        tryVerify(() => test.visibleFace() === "failedFace");
        mouseClick(test.monitor.contentItem, 720, 405);
        compare(screen.takeDatagrams(), []);
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
        const release = test.told(1, 1, 5, 1, 10);
        const expected = [test.told(0, 1, 10, 1, 10), test.told(2, 1, 5, 1, 10), release];
        compare(screen.takeDatagrams(), expected);
        if (test.monitor)
            mouseRelease(test.pointer(), 432, 405);
        compare(screen.takeDatagrams(), []);
    }

    function random(from: int, to: int): int {
        return from + Math.floor(Math.random() * (to - from + 1));
    }

    // Where the picture lies on one axis, by its own size and the window's.
    function stretch(length: real, picture: real): var {
        return { start: (length - picture) / 2, end: (length + picture) / 2, length: picture };
    }

    function test_placesAtRandomSizes(): void {
        // Smaller than users can make it, for the software renderer's sake.
        test.monitor.minimumWidth = 400;
        test.monitor.minimumHeight = 300;
        for (let round = 0; round < 200; ++round) {
            const size = Qt.size(test.random(400, 1000), test.random(300, 700));
            const frame = Qt.size(test.random(160, 1920) * 2, test.random(160, 1080) * 2);
            test.showFrame(frame.width, frame.height);
            test.resize(size.width, size.height);
            const wide = frame.width / frame.height > size.width / size.height;
            const across = test.stretch(size.width, wide ? size.width : size.height * frame.width / frame.height);
            const down = test.stretch(size.height, wide ? size.width * frame.height / frame.width : size.height);
            const inside = axis => [
                Math.ceil(axis.start - 1e-9) + 0, Math.floor(axis.end + 1e-9), test.random(Math.ceil(axis.start), Math.floor(axis.end))
            ].filter(position => position >= axis.start - 1e-9 && position <= axis.end + 1e-9);
            const what = `window ${size}, frame ${frame}`;
            for (const x of inside(across)) {
                for (const y of inside(down)) {
                    const place = test.pointer().getScalePos(x, y);
                    verify(place !== null, `${what}: ${x}, ${y}`);
                    if (x === across.start || x === across.end)
                        compare(place.x, x === across.start ? 0 : 1, what);
                    fuzzyCompare(place.x, (x - across.start) / across.length, 1e-9, what);
                    fuzzyCompare(place.y, (y - down.start) / down.length, 1e-9, what);
                }
            }
            const middle = Qt.point(Math.round(size.width / 2), Math.round(size.height / 2));
            for (const x of [Math.ceil(across.start - 1e-9) - 1, Math.floor(across.end + 1e-9) + 1])
                compare(test.pointer().getScalePos(x, middle.y), null, `${what}: ${x}`);
            for (const y of [Math.ceil(down.start - 1e-9) - 1, Math.floor(down.end + 1e-9) + 1])
                compare(test.pointer().getScalePos(middle.x, y), null, `${what}: ${y}`);

            if (inside(across).length === 0 || inside(down).length === 0)
                continue;
            const x = inside(across)[0];
            const y = inside(down)[0];
            mouseClick(test.pointer(), x, y);
            const place = test.pointer().getScalePos(x, y);
            compare(screen.takeDatagrams(), [0, 1].map(type => test.told(type, place.x, 1, place.y, 1)), what);
        }
    }
}
