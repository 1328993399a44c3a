import QtQuick
import QtTest

// A test of one page, which is used as a person would: by what can be seen of it.
TestCase {
    id: test

    property Item page: null

    // The first item below `item`, in depth, for which `matches` holds; hidden ones too.
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

    // Replaces what a field holds, key by key.
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
