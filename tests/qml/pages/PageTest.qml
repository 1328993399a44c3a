import QtQuick
import QtTest

// Test of one page through its visible items, as a user operates it.
TestCase {
    id: test

    property Item page: null

    // The first item below `item` for which `matches` returns true, depth first. Finds hidden items too.
    function search(item: Item, matches: var): var {
        for (let i = 0; i < item.children.length; ++i) {
            const child = item.children[i];
            const found = matches(child) ? child : test.search(child, matches);
            if (found)
                return found;
        }
        return null;
    }

    function visibleChild(name: string): var {
        return test.search(test.page, item => item.visible && item.objectName === name);
    }

    function visibleText(text: string): var {
        return test.search(test.page, item => item.visible && item.text === text);
    }

    function shown(text: string): bool {
        return test.visibleText(text) !== null;
    }

    function click(text: string): void {
        const label = test.visibleText(text);
        verify(label, text);
        mouseClick(label);
    }

    // Makes the connection stages fast.
    function shortenStaging(): void {
        const staging = test.search(test.page, item => item.firstShowDelay !== undefined);
        staging.tickInterval = 5;
        staging.deviceShowInterval = staging.firstShowDelay = staging.firstShowInterval = staging.completeInterval = 20;
        staging.blinkOnInterval = staging.blinkOffInterval = 5;
    }

    // Replaces the text of a field, key by key.
    function type(name: string, text: string): void {
        const field = test.visibleChild(name);
        verify(field, name);
        field.forceActiveFocus();
        field.selectAll();
        keyClick(Qt.Key_Delete);
        for (let i = 0; i < text.length; ++i)
            keyClick(text[i]);
    }

    when: windowShown
    visible: true
}
