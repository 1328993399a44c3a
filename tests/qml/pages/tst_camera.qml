// qmllint disable unqualified
import QtQuick
import "../../../qml/pages"

DisplayTest {
    id: test

    property CameraControl page: null

    function init(): void {
        mouseMove(test, 700, 660);
        test.answer(0, "isReady", 0);
        page = createTemporaryObject(pageComponent, test) as CameraControl;
        test.sent();
    }

    function face(name: string): Item {
        return findChild(test.page, name) as Item;
    }

    name: "Camera"

    Component {
        id: pageComponent

        CameraControl {
            anchors.fill: parent
        }
    }

    readonly property list<string> queries: [
        '{"cmd":14,"seq":#,"type":0}', '{"cmd":16,"seq":#,"type":0}', '{"cmd":21,"seq":#,"type":0}'
    ]

    function test_connectionRequestsTheState(): void {
        verify(test.face("openCameraFace").visible);
        for (const mode of [1, 2]) {
            test.answer(0, "isReady", mode);
            compare(test.sent(), [...test.queries]);
        }
        createTemporaryObject(pageComponent, test);
        compare(test.sent(), [...test.queries]);
        test.answer(0, "isReady", 0);
        compare(test.sent(), []);
    }

    function test_cameraInUseShowsTheControls(): void {
        test.answer(0, "isReady", 1);
        for (const [status, panelShows] of [[1, true], [0, false], [2, true]]) {
            test.answer(21, "camerastatus", status);
            compare(test.face("ptzFace").visible, panelShows);
            compare(test.face("openCameraFace").visible, !panelShows);
        }
    }

    function test_disconnectionEndsHeldMovements(): void {
        test.answer(0, "isReady", 1);
        test.answer(21, "camerastatus", 1);
        verify(test.face("ptzFace").activeFocus);
        test.sent();
        keyPress(Qt.Key_Right);
        test.hold(test.face("up"));
        compare(test.sent(), [test.scale(5, 0), test.scale(2, 0)]);
        test.answer(0, "isReady", 0);
        verify(test.face("openCameraFace").visible);
        compare(test.sent().sort(), [test.scale(2, 1), test.scale(5, 1)]);
        keyRelease(Qt.Key_Right);
        mouseRelease(test.page, 1, 1);
        compare(test.sent(), []);
    }
}
