// qmllint disable unqualified
import QtQuick
import "../../../qml/controls"
import "../../../qml/pages"

DisplayTest {
    id: test

    property PTZ panel: null

    function init(): void {
        mouseMove(test, 700, 660);
        ptz.setAutoFraming(false, 1);
        ptz.setSmartFraming(false, 1);
        panel = createTemporaryObject(panelComponent, test) as PTZ;
        test.sent();
    }

    function control(name: string): Item {
        const found = findChild(test.panel, name) as Item;
        verify(found, name);
        return found;
    }

    name: "PTZ"

    Component {
        id: panelComponent

        PTZ {
            width: 603
            height: 477
        }
    }

    // Takes the focus from the panel.
    Item {
        id: elsewhere

        focus: true
    }

    Component {
        id: windowComponent

        Window {
            property alias panel: windowPanel

            width: 603
            height: 477

            PTZ {
                id: windowPanel

                anchors.fill: parent
            }
        }
    }

    function test_buttonMovesWhileItIsHeld_data(): var {
        return [
            { tag: "zoomIn", movement: 0 }, { tag: "zoomOut", movement: 1 }, { tag: "up", movement: 2 },
            { tag: "down", movement: 3 }, { tag: "left", movement: 4 }, { tag: "right", movement: 5 }
        ];
    }

    function test_buttonMovesWhileItIsHeld(data: var): void {
        const button = test.control(data.tag);
        test.hold(button);
        compare(test.sent(), [test.scale(data.movement, 0)]);
        mouseRelease(button);
        compare(test.sent(), [test.scale(data.movement, 1)]);

        button.forceActiveFocus();
        keyPress(Qt.Key_Space);
        keyRelease(Qt.Key_Space);
        compare(test.sent(), [test.scale(data.movement, 0), test.scale(data.movement, 1)]);
    }

    function test_keyMovesWhileItIsHeld_data(): var {
        return [
            { tag: "plus", key: Qt.Key_Plus, movement: 0 }, { tag: "equal", key: Qt.Key_Equal, movement: 0 },
            { tag: "minus", key: Qt.Key_Minus, movement: 1 }, { tag: "up", key: Qt.Key_Up, movement: 2 },
            { tag: "down", key: Qt.Key_Down, movement: 3 }, { tag: "left", key: Qt.Key_Left, movement: 4 },
            { tag: "right", key: Qt.Key_Right, movement: 5 }
        ];
    }

    function test_keyMovesWhileItIsHeld(data: var): void {
        // Controls inside the panel pass these keys on to it.
        for (const holder of [test.panel, test.control("preset2"), test.control("framingTab0")]) {
            holder.forceActiveFocus();
            keyPress(data.key);
            compare(test.sent(), [test.scale(data.movement, 0)]);
            keyRelease(data.key);
            compare(test.sent(), [test.scale(data.movement, 1)]);
        }
        keyPress(data.key, Qt.ControlModifier);
        keyRelease(data.key, Qt.ControlModifier);
        compare(test.sent(), []);
    }

    // On X11 the repeats of a held key may look like new presses.
    function test_repeatsOfAKeyDoNotInterruptItsMovement(): void {
        const keys = test.control("movementKeys") as MovementKeys;
        test.panel.forceActiveFocus();
        keyPress(Qt.Key_Up);
        tryVerify(() => !keys.repeats.delay.running);
        keyRelease(Qt.Key_Up);
        keyPress(Qt.Key_Up);
        compare(test.sent(), [test.scale(2, 0)]);
        keyRelease(Qt.Key_Up);
        tryVerify(() => keys.heldMovement < 0);
        compare(test.sent(), [test.scale(2, 1)]);
    }

    function test_movementEndsWithTheFocusAndThePage(): void {
        test.panel.forceActiveFocus();
        keyPress(Qt.Key_Up);
        elsewhere.forceActiveFocus();
        keyRelease(Qt.Key_Up);
        compare(test.sent(), [test.scale(2, 0), test.scale(2, 1)]);

        test.panel.forceActiveFocus();
        keyPress(Qt.Key_Up);
        test.answer(13, "autoframestatus", 1);
        compare(test.sent(), [test.scale(2, 0), test.scale(2, 1)]);
        keyRelease(Qt.Key_Up);
        keyClick(Qt.Key_Up);
        compare(test.sent(), []);
    }

    function test_hidingTheWindowEndsHeldMovements(): void {
        const window = createTemporaryObject(windowComponent, test) as Window;
        window.show();
        window.requestActivate();
        window.panel.forceActiveFocus();
        tryVerify(() => window.panel.activeFocus);
        keyPress(Qt.Key_Down);
        const button = findChild(window.panel, "zoomOut") as Item;
        test.hold(button);
        compare(test.sent(), [test.scale(3, 0), test.scale(1, 0)]);
        window.hide();
        compare(test.sent().sort(), [test.scale(1, 1), test.scale(3, 1)]);
        mouseRelease(button);
        keyRelease(Qt.Key_Down);
        compare(test.sent(), []);
    }

    function raiseSaveButton(preset: string): Item {
        const button = test.control(preset) as PresetButton;
        button.repeatInterval = 1;
        const save = test.control("saveButton");
        test.hold(button);
        tryVerify(() => save.visible);
        mouseRelease(button);
        return save;
    }

    function test_presetsAreAppliedAndSaved(): void {
        elsewhere.forceActiveFocus();
        mouseClick(test.panel, 20, 440);
        verify(test.panel.activeFocus, "a press focuses the panel");
        for (let i = 0; i < 3; ++i) {
            mouseClick(test.control("preset" + (i + 1)));
            compare(test.sent(), [test.preset(i, 0)]);
            const save = test.raiseSaveButton("preset" + (i + 1));
            const preset = test.control("preset" + (i + 1));
            compare(test.centreOf(save).x, test.centreOf(preset).x);
            compare(save.y + save.height + 5, preset.mapToItem(test.panel, 0, 0).y);
            mouseClick(save);
            verify(!save.visible);
            compare(test.sent(), [test.preset(i, 1)]);
        }
    }

    function test_tabsTurnAutoFramingOnAndOff(): void {
        mouseClick(test.control("framingTab1"));
        verify(test.control("autoFramingPage").visible);
        verify(!test.control("manualPage").visible);
        compare(test.sent(), [test.autoFraming(true)]);

        mouseClick(test.control("smartFramingSwitch"));
        compare(test.sent(), [test.smartFraming(true)]);
        verify((test.control("smartFramingSwitch") as PanelSwitch).checked);

        mouseClick(test.control("framingTab0"));
        verify(test.control("manualPage").visible);
        compare(test.sent(), [test.autoFraming(false)]);

        test.control("framingTab1").forceActiveFocus();
        keyClick(Qt.Key_Space);
        compare(test.sent(), [test.autoFraming(true), test.smartFraming(true)]);
    }

    Component {
        id: standInComponent

        Item {
            property alias camera: ptz

            // Takes the place of the program's camera object for the panel in this component.
            QtObject {
                id: ptz

                property bool autoFraming: false
                property bool smartFraming: false
                property var calls: []

                function setAutoFraming(on: bool): void {
                    calls.push(on);
                }
            }

            PTZ {}
        }
    }

    // The display may have changed the framing again when the panel follows its report.
    function test_reportsAreNotSentBack(): void {
        const camera = createTemporaryObject(standInComponent, test).camera;
        camera.autoFraming = true;
        camera.autoFraming = false;
        compare(camera.calls, []);
    }

    function test_tabKeyReachesEveryControl(): void {
        const names = ["framingTab0", "framingTab1", "zoomIn", "zoomOut", "up", "down", "left", "right", "preset1", "preset2", "preset3"];
        elsewhere.forceActiveFocus();
        for (const name of names) {
            keyClick(Qt.Key_Tab);
            compare(Window.activeFocusItem.objectName, name);
            verify(Window.activeFocusItem.Accessible.name !== "", name);
        }
    }
}
