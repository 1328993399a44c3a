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
            id: fifth

            enablePasswordMode: true
        }
        QuickTextField {
            id: last
        }
    }

    function ringOf(item: Item): FocusRing {
        const ring = item as FocusRing;
        if (ring)
            return ring;
        for (let i = 0; i < item.children.length; ++i) {
            const found = ringOf(item.children[i]);
            if (found)
                return found;
        }
        return null;
    }

    function test_tabOrder(): void {
        const reveal = findChild(fifth, "revealButton") as ControlButton;
        const order = [first, second, third, fourth, fifth, reveal, last];
        first.forceActiveFocus(Qt.TabFocusReason);
        for (const item of order) {
            verify(item.activeFocus);
            if (item !== fifth && item !== last)
                verify(ringOf(item).visible);
            keyClick(Qt.Key_Tab);
        }
        first.forceActiveFocus(Qt.TabFocusReason);
        for (const item of order.slice(1).reverse()) {
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
            verify(item.activeFocus);
        }
        verify(!ringOf(first).visible);
    }

    function test_ringStandsOutsideTheShape(): void {
        const ring = ringOf(first);
        const corner = ring.mapToItem(first, 0, 0);
        compare(corner.x, -4);
        compare(corner.y, -4);
        compare(ring.width, first.width + 8);
        compare(ring.height, first.height + 8);
    }

    function test_revealButtonKeepsItsKeys(): void {
        const reveal = findChild(fifth, "revealButton") as ControlButton;
        fifth.text = "secret";
        reveal.forceActiveFocus(Qt.TabFocusReason);
        keyClick("x");
        compare(fifth.text, "secret");
        keyClick(Qt.Key_Backspace);
        compare(fifth.text, "secret");
        keyClick(Qt.Key_Space);
        compare(fifth.echoMode, TextInput.Normal);
        compare(reveal.Accessible.name, "Hide");
        keyClick(Qt.Key_Return);
        compare(fifth.echoMode, TextInput.Password);
        compare(fifth.text, "secret");
    }
}
