pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import "../../../qml/controls"

TestCase {
    id: test

    // The signals of the button under test, in their order.
    property var log: []

    name: "Buttons"
    when: windowShown
    visible: true
    width: 400
    height: 300

    Component {
        id: quick

        QuickButton {
            x: 50
            y: 50
            width: 100
            repeatInterval: 20

            LatoRegularLabel {
                text: "Google\n  Meet"
            }
        }
    }

    Component {
        id: control

        ControlButton {
            property alias label: content

            x: 50
            y: 50
            width: childrenRect.width
            height: childrenRect.height
            repeatInterval: 20

            LatoRegularLabel {
                id: content

                text: "Forgot Password?"
            }
        }
    }

    function create(component: Component, properties: var): var {
        mouseMove(test, 300, 250);
        const button = createTemporaryObject(component, test, properties);
        test.log = [];
        for (const name of ["pressed", "released", "clicked", "triggered"])
            button[name].connect(() => test.log.push(name));
        return button;
    }

    function countTriggered(): int {
        return test.log.filter(name => name === "triggered").length;
    }

    // The log with repeated entries joined.
    function steps(): string {
        return test.log.filter((name, i, all) => name !== all[i - 1]).join(" ");
    }

    function test_quickButtonFollowsThePointer(): void {
        const button = create(quick, {});
        mouseMove(button, 10, 10);
        compare(button.color, button.hoverColor);
        mousePress(button, 10, 10);
        compare(button.color, button.pressedColor);
        mouseRelease(button, 10, 10);
        compare(button.color, button.hoverColor);
        compare(steps(), "pressed released clicked");
        verify(!button.activeFocus, "a click does not move the focus");
        mousePress(button, 10, 10);
        mouseMove(test, 300, 250);
        compare(button.color, button.normalColor);
        mouseRelease(test, 300, 250);
        compare(button.color, button.normalColor);
        compare(steps(), "pressed released clicked pressed released");
        button.normalColor = "#FF0000";
        compare(button.color, button.normalColor);
    }

    function test_longPressOfAQuickButtonDoesNotClick_data(): var {
        return [
            { tag: "once", autoRepeat: false, times: 1, key: 0 },
            { tag: "repeating", autoRepeat: true, times: 3, key: 0 },
            { tag: "by key", autoRepeat: true, times: 3, key: Qt.Key_Space },
        ];
    }

    function test_longPressOfAQuickButtonDoesNotClick(data: var): void {
        const button = create(quick, { longPresse: true, autoRepeat: data.autoRepeat });
        button.forceActiveFocus();
        data.key ? keyPress(data.key) : mousePress(button);
        tryVerify(() => countTriggered() >= data.times);
        data.key ? keyRelease(data.key) : mouseRelease(button);
        compare(steps(), "pressed triggered released");
        const held = countTriggered();
        mouseClick(button);
        compare(steps(), "pressed triggered released pressed released clicked");
        compare(countTriggered(), held);
    }

    // On X11 the repeats of a held key may look like new presses.
    function test_heldKeyIsOnePress(): void {
        const button = create(quick, { longPresse: true, autoRepeat: true, repeatInterval: 60 });
        button.forceActiveFocus();
        keyPress(Qt.Key_Space);
        for (let times = 3; times < 6; ++times) {
            tryVerify(() => countTriggered() >= times);
            keyRelease(Qt.Key_Space);
            keyPress(Qt.Key_Space);
        }
        compare(steps(), "pressed triggered");
        keyRelease(Qt.Key_Space);
        tryVerify(() => steps() === "pressed triggered released");
    }

    function test_leavingAHeldButtonEndsItsRepeats_data(): var {
        return [
            { tag: "quick", component: quick, atExit: "pressed triggered", atRelease: "pressed triggered released" },
            { tag: "control", component: control, atExit: "pressed triggered released", atRelease: "pressed triggered released" },
        ];
    }

    function test_leavingAHeldButtonEndsItsRepeats(data: var): void {
        const button = create(data.component, { longPresse: true, autoRepeat: true });
        mousePress(button, 5, 5);
        tryVerify(() => countTriggered() >= 2);
        mouseMove(test, 300, 250);
        compare(steps(), data.atExit);
        const length = test.log.length;
        wait(button.repeatInterval * 3); // no repeat may follow
        compare(test.log.length, length);
        mouseRelease(test, 300, 250);
        compare(test.log.length, length + 1);
        compare(steps(), data.atRelease);
    }

    function test_controlButtonFades(): void {
        const button = create(control, { longPresse: true });
        mouseMove(button, 5, 5);
        compare(button.opacity, button.enterOpacity);
        mousePress(button, 5, 5);
        compare(button.opacity, button.pressedOpacity);
        tryVerify(() => countTriggered() === 1);
        mouseRelease(button, 5, 5);
        compare(button.opacity, button.enterOpacity);
        compare(steps(), "pressed triggered released clicked");
        mouseMove(test, 300, 250);
        compare(button.opacity, button.exitedOpacity);
    }

    function test_heldControlButtonIsReleasedWhenItGoes_data(): var {
        return [
            { tag: "hidden", change: button => button.visible = false, key: 0 },
            { tag: "disabled", change: button => button.enabled = false, key: 0 },
            { tag: "hidden, by key", change: button => button.visible = false, key: Qt.Key_Return },
            { tag: "focus lost, by key", change: button => test.forceActiveFocus(), key: Qt.Key_Return },
        ];
    }

    function test_heldControlButtonIsReleasedWhenItGoes(data: var): void {
        const button = create(control, {});
        button.forceActiveFocus();
        data.key ? keyPress(data.key) : mousePress(button, 5, 5);
        compare(steps(), "pressed");
        data.change(button);
        data.key ? keyRelease(data.key) : mouseRelease(button, 5, 5);
        compare(steps(), "pressed released");
    }

    function test_keysPress_data(): var {
        const rows = [];
        for (const [kind, component] of [["quick", quick], ["control", control]]) {
            for (const key of [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter])
                rows.push({ tag: `${kind} ${key}`, component: component, key: key, modifiers: Qt.NoModifier, expected: "pressed released clicked" });
            rows.push({ tag: kind + " chord", component: component, key: Qt.Key_Return, modifiers: Qt.ControlModifier, expected: "" });
        }
        return rows;
    }

    function test_keysPress(data: var): void {
        const button = create(data.component, {});
        button.forceActiveFocus();
        const rest = [button.color, button.opacity].join();
        keyPress(data.key, data.modifiers);
        compare([button.color, button.opacity].join() !== rest, data.expected !== "");
        keyPress(data.key, data.modifiers); // the keyboard's auto-repeat
        keyRelease(data.key, data.modifiers);
        compare(steps(), data.expected);
        compare([button.color, button.opacity].join(), rest);
    }
}
