pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import "../../../qml/controls"

TestCase {
    id: test

    name: "Buttons"
    when: windowShown
    visible: true
    width: 400
    height: 300

    Component {
        id: quick

        QuickButton {
            property var log: []

            x: 50
            y: 50
            width: 100
            repeatInterval: 20
            onPressed: log.push("pressed")
            onReleased: log.push("released")
            onClicked: log.push("clicked")
            onTriggered: log.push("triggered")

            LatoRegularLabel {
                text: "Google\n  Meet"
            }
        }
    }

    Component {
        id: control

        ControlButton {
            property var log: []
            property alias label: content

            x: 50
            y: 50
            width: childrenRect.width
            height: childrenRect.height
            repeatInterval: 20
            onPressed: log.push("pressed")
            onReleased: log.push("released")
            onClicked: log.push("clicked")
            onTriggered: log.push("triggered")

            LatoRegularLabel {
                id: content

                text: "Forgot Password?"
            }
        }
    }

    function init(): void {
        mouseMove(test, 300, 250);
    }

    function countTriggered(button: var): int {
        return button.log.filter(name => name === "triggered").length;
    }

    // The log without the repeats in the middle of a hold.
    function steps(button: var): string {
        return button.log.filter((name, i, all) => name !== all[i - 1]).join(" ");
    }

    function test_quickButtonFollowsThePointer(): void {
        const button = createTemporaryObject(quick, test) as QuickButton;
        mouseMove(button, 10, 10);
        compare(button.color, button.hoverColor);
        mousePress(button, 10, 10);
        compare(button.color, button.pressedColor);
        mouseRelease(button, 10, 10);
        compare(button.color, button.hoverColor);
        compare(steps(button), "pressed released clicked");
        verify(!button.activeFocus, "a click leaves the focus where it is");
        mousePress(button, 10, 10);
        mouseMove(test, 300, 250);
        compare(button.color, button.normalColor);
        mouseRelease(test, 300, 250);
        compare(button.color, button.normalColor);
        compare(steps(button), "pressed released clicked pressed released");
        button.normalColor = "#FF0000";
        compare(button.color, button.normalColor);
    }

    function test_quickButtonHold_data(): var {
        return [
            { tag: "once", autoRepeat: false, times: 1, key: 0 },
            { tag: "repeating", autoRepeat: true, times: 3, key: 0 },
            { tag: "by key", autoRepeat: true, times: 3, key: Qt.Key_Space },
        ];
    }

    function test_quickButtonHold(data: var): void {
        const button = createTemporaryObject(quick, test, { longPresse: true, autoRepeat: data.autoRepeat }) as QuickButton;
        button.forceActiveFocus();
        data.key ? keyPress(data.key) : mousePress(button);
        tryVerify(() => countTriggered(button) >= data.times);
        data.key ? keyRelease(data.key) : mouseRelease(button);
        compare(steps(button), "pressed triggered released");
        const held = countTriggered(button);
        mouseClick(button);
        compare(steps(button), "pressed triggered released pressed released clicked");
        compare(countTriggered(button), held);
    }

    function test_quickButtonHoldEndsWithThePointer(): void {
        const button = createTemporaryObject(quick, test, { longPresse: true, autoRepeat: true }) as QuickButton;
        mousePress(button);
        tryVerify(() => button.isLongPressed);
        mouseMove(test, 300, 250);
        verify(!button.isLongPressed);
        const held = countTriggered(button);
        wait(button.repeatInterval * 3); // nothing more may come
        compare(countTriggered(button), held);
        mouseRelease(test, 300, 250);
    }

    function test_controlButtonFades(): void {
        const button = createTemporaryObject(control, test) as ControlButton;
        mouseMove(button, 5, 5);
        compare(button.opacity, button.enterOpacity);
        mousePress(button, 5, 5);
        compare(button.opacity, button.pressedOpacity);
        mouseRelease(button, 5, 5);
        compare(button.opacity, button.enterOpacity);
        compare(steps(button), "pressed released clicked");
        mouseMove(test, 300, 250);
        compare(button.opacity, button.exitedOpacity);
    }

    function test_controlButtonLeftWhileHeld(): void {
        const button = createTemporaryObject(control, test, { longPresse: true, autoRepeat: true }) as ControlButton;
        mousePress(button, 5, 5);
        tryVerify(() => countTriggered(button) >= 2);
        mouseMove(test, 300, 250);
        compare(steps(button), "pressed triggered released");
        const length = button["log"].length;
        wait(button.repeatInterval * 3); // nothing more may come
        compare(button["log"].length, length);
        mouseRelease(test, 300, 250);
        compare(button["log"].length, length + 1);
        compare(button["log"][length], "released");
    }

    function test_controlButtonClicksAfterRepeats(): void {
        const button = createTemporaryObject(control, test, { longPresse: true }) as ControlButton;
        mousePress(button, 5, 5);
        tryVerify(() => countTriggered(button) === 1);
        mouseRelease(button, 5, 5);
        compare(steps(button), "pressed triggered released clicked");
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
        const button = createTemporaryObject(control, test) as ControlButton;
        button.forceActiveFocus();
        data.key ? keyPress(data.key) : mousePress(button, 5, 5);
        compare(steps(button), "pressed");
        data.change(button);
        data.key ? keyRelease(data.key) : mouseRelease(button, 5, 5);
        compare(steps(button), "pressed released");
    }

    function test_keysPress_data(): var {
        const rows = [];
        for (const component of [quick, control]) {
            const kind = component === quick ? "quick" : "control";
            rows.push({ tag: kind + " Space", component: component, key: Qt.Key_Space, modifiers: Qt.NoModifier, expected: "pressed released clicked" });
            rows.push({ tag: kind + " Return", component: component, key: Qt.Key_Return, modifiers: Qt.NoModifier, expected: "pressed released clicked" });
            rows.push({ tag: kind + " Enter", component: component, key: Qt.Key_Enter, modifiers: Qt.KeypadModifier, expected: "pressed released clicked" });
            rows.push({ tag: kind + " chord", component: component, key: Qt.Key_Return, modifiers: Qt.ControlModifier, expected: "" });
        }
        return rows;
    }

    function test_keysPress(data: var): void {
        const button = createTemporaryObject(data.component, test) as Rectangle;
        button.forceActiveFocus();
        const rest = [button.color, button.opacity].join();
        keyPress(data.key, data.modifiers);
        compare([button.color, button.opacity].join() !== rest, data.expected !== "");
        keyPress(data.key, data.modifiers); // the keyboard's own repeat
        keyRelease(data.key, data.modifiers);
        compare(steps(button), data.expected);
        compare([button.color, button.opacity].join(), rest);
    }

    function test_pointerTakesOverFromAKey(): void {
        const button = createTemporaryObject(control, test) as ControlButton;
        button.forceActiveFocus();
        keyPress(Qt.Key_Space);
        mousePress(button, 5, 5);
        keyRelease(Qt.Key_Space);
        mouseRelease(button, 5, 5);
        compare(steps(button), "pressed released pressed released clicked");
    }

    function test_buttonIsMeasuredByItsContent(): void {
        const button = createTemporaryObject(control, test) as ControlButton;
        compare(button.width, button["label"].width);
        button["label"].text = "Send";
        compare(button.width, button["label"].width);
        compare(button.height, button["label"].height);
    }

    function test_screenReader(): void {
        const button = createTemporaryObject(quick, test) as QuickButton;
        compare(button.Accessible.role, Accessible.Button);
        compare(button.Accessible.name, "Google Meet");
        button.Accessible.pressAction();
        compare(steps(button), "pressed released clicked");
        compare(button.color, button.normalColor);
        button.accessibleName = "Close";
        compare(button.Accessible.name, "Close");
    }
}
