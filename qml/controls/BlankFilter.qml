import QtQuick

// Removes blanks entered by an input method or a paste from a text field. Blanks in a text that the program
// has set are kept.
Item {
    id: filter

    required property TextInput input

    // The field's text, and its text before the last change.
    property string currentText: ""
    property string previousText: ""

    // To be called on each change of the text.
    function noteChange(): void {
        filter.previousText = filter.currentText;
        filter.currentText = filter.input.text;
    }

    // To be called on each edit by the user.
    function removeTypedBlanks(): void {
        const text = filter.input.text;
        // Qt versions emit textEdited and textChanged in different order.
        const before = filter.currentText === text ? filter.previousText : filter.currentText;
        const shorter = Math.min(before.length, text.length);
        let head = 0;
        while (head < shorter && before[head] === text[head])
            ++head;
        let tail = 0;
        while (tail < shorter - head && before[before.length - 1 - tail] === text[text.length - 1 - tail])
            ++tail;
        const added = text.slice(head, text.length - tail);
        const kept = added.replace(/\s+/g, "");
        if (kept === added)
            return;
        filter.input.remove(head, head + added.length);
        filter.input.insert(head, kept);
        filter.input.cursorPosition = head + kept.length;
    }

    // Pastes the clipboard without its blanks. The field's pattern would refuse all of it because of one blank.
    function paste(): void {
        clipboard.clear();
        clipboard.paste();
        filter.input.remove(filter.input.selectionStart, filter.input.selectionEnd);
        filter.input.insert(filter.input.cursorPosition, clipboard.text.replace(/\s+/g, ""));
        clipboard.clear();
    }

    visible: false

    TextInput {
        id: clipboard

        font: filter.input.font // avoids loading a second font
    }
}
