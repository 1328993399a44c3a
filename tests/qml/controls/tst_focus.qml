import QtQuick
import QtTest
import "../../../qml/controls"

TestCase {
    id: test

    name: "Focus"
    when: windowShown
    visible: true
    width: 400
    height: 300

    Column {
        spacing: 20

        QuickButton {
            id: first
        }
        QuickButton {
            enabled: false
        }
        ControlButton {
            id: second

            width: 20
            height: 20
        }
        QuickSwitch {
            id: third
        }
        CircularCheckBox {
            id: fourth
        }
        QuickTextField {
            id: last

            enablePasswordMode: true
            placeholderText: "Password"
        }
    }

    function ringOf(item: Item): FocusRing {
        if (item as FocusRing)
            return item as FocusRing;
        for (let i = 0; i < item.children.length; ++i) {
            const found = ringOf(item.children[i]);
            if (found)
                return found;
        }
        return null;
    }

    function test_tabKeyShowsTheRing(): void {
        const order = [first, second, third, fourth, last];
        first.forceActiveFocus(Qt.TabFocusReason);
        for (const item of order) {
            verify(item.activeFocus);
            if (item !== last)
                verify(ringOf(item).visible);
            keyClick(Qt.Key_Tab);
        }
        verify(!ringOf(first).visible);
        const corner = ringOf(first).mapToItem(first, 0, 0);
        compare([corner.x, corner.y, ringOf(first).width, ringOf(first).height], [-4, -4, first.width + 8, first.height + 8]);
    }

    function test_revealButtonKeepsItsKeys(): void {
        const reveal = findChild(last, "revealButton") as ControlButton;
        last.text = "secret";
        last.forceActiveFocus();
        keyClick(Qt.Key_Tab);
        verify(reveal.activeFocus);
        keyClick("x");
        keyClick(Qt.Key_Backspace);
        compare(last.text, "secret");
        keyClick(Qt.Key_Space);
        compare(last.echoMode, TextInput.Normal);
        compare(reveal.Accessible.name, "Hide Password");
        keyClick(Qt.Key_Return);
        compare(last.echoMode, TextInput.Password);
        keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
        verify(last.activeFocus);
    }
}
