pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import "../../../qml/controls"

TestCase {
    id: test

    name: "TextField"
    when: windowShown
    visible: true
    width: 400
    height: 300

    Component {
        id: fieldComponent

        QuickTextField {
            placeholderText: "Email"
            errorMessage: "The format is incorrect"
        }
    }

    QuickTextField {
        id: source

        y: 100
        forbidSpace: false
    }

    QuickButton {
        id: next

        y: 200
    }

    Component {
        id: windowComponent

        Window {
            width: 100
            height: 100
        }
    }

    property int entered: 0

    function init(): void {
        entered = 0;
        source.clear();
        next.forceActiveFocus();
    }

    function create(properties: var): QuickTextField {
        const field = createTemporaryObject(fieldComponent, test, properties) as QuickTextField;
        verify(field.initialized);
        compareLook(field, "resting");
        return field;
    }

    function compareLook(field: QuickTextField, look: string): void {
        const colors = { resting: field.normalBorderColor, editing: field.focusBorderColor, failed: field.errorBorderColor };
        compare((field.background as Rectangle).border.color, colors[look]);
        compare(field.showError, look === "failed");
        compare(field.Accessible.description.includes(field.errorMessage), look === "failed");
    }

    function putOnClipboard(text: string): void {
        source.text = text;
        source.selectAll();
        source.copy();
    }

    function test_validation_data(): var {
        const mail = source.regexEmail;
        return [
            { tag: "empty", text: "", allowed: ".*", check: null, onLeave: "resting", onEnter: "failed", valid: false },
            { tag: "anything", text: "abc", allowed: ".*", check: null, onLeave: "resting", onEnter: "resting", valid: true },
            { tag: "half an address", text: "a@b", allowed: mail, check: null, onLeave: "failed", onEnter: "failed", valid: false },
            { tag: "address", text: "a@b.co", allowed: mail, check: null, onLeave: "resting", onEnter: "resting", valid: true },
            { tag: "content refused", text: "a@b.co", allowed: mail, check: () => false, onLeave: "failed", onEnter: "failed", valid: false },
            { tag: "content accepted, pattern not", text: "a@", allowed: mail, check: () => true, onLeave: "failed", onEnter: "failed", valid: false },
        ];
    }

    function test_validation(data: var): void {
        const field = create({ allowedChars: data.allowed, onContentCheck: data.check });
        field.text = data.text;
        field.forceActiveFocus();
        compareLook(field, "editing");
        next.forceActiveFocus();
        compareLook(field, data.onLeave);

        field.forceActiveFocus();
        compareLook(field, "editing");
        field.onEnterAction = () => ++test.entered;
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Enter, Qt.KeypadModifier);
        compareLook(field, data.onEnter);
        compare(field.valid, data.valid);
        compare(test.entered, data.valid ? 2 : 0);
    }

    function test_typingClearsTheErrorAndResetClearsTheText(): void {
        const field = create({ allowedChars: source.regexOnlyNum, onContentCheck: () => false });
        field.forceActiveFocus();
        keyClick(Qt.Key_Return);
        compareLook(field, "failed");
        keyClick("1");
        compareLook(field, "editing");
        keyClick("x");
        compare(field.text, "1");
        keyClick(Qt.Key_Return);
        compareLook(field, "failed");
        field.reset();
        compareLook(field, "resting");
        compare(field.text, "");
    }

    function test_blanksAreNotEntered(): void {
        const field = create({ allowedChars: source.regexEmail });
        field.forceActiveFocus();
        keyClick("a");
        keyClick(Qt.Key_Space);
        compare(field.text, "a");

        putOnClipboard("  b@c.co\t");
        keyClick(Qt.Key_V, Qt.ControlModifier);
        compare(field.text, "ab@c.co");
        putOnClipboard("x y");
        field.select(1, 7);
        keyClick(Qt.Key_Insert, Qt.ShiftModifier);
        compare(field.text, "axy");
        field.allowedChars = "[a-z]*";
        field.text = "abc";
        putOnClipboard("1");
        keyClick(Qt.Key_V, Qt.ControlModifier);
        compare(field.text, "abc");
        putOnClipboard("z".repeat(80));
        keyClick(Qt.Key_V, Qt.ControlModifier);
        compare(field.text.length, 64);

        field.forbidSpace = false;
        field.allowedChars = ".*";
        field.text = "a";
        keyClick(Qt.Key_Space);
        compare(field.text, "a ");
    }

    function test_blanksSetByThePageAreKept(): void {
        const field = create({ text: "Mary Ann" });
        field.forceActiveFocus();
        keyClick(Qt.Key_End);
        keyClick("e");
        compare(field.text, "Mary Anne");
    }

    function test_passwordIsNeitherCopiedNorPasted_data(): var {
        return [
            { tag: "hidden", shown: false },
            { tag: "shown", shown: true },
        ];
    }

    function test_passwordIsNeitherCopiedNorPasted(data: var): void {
        const field = create({ enablePasswordMode: true, showPassword: data.shown, text: "secret" });
        putOnClipboard("clip");
        field.forceActiveFocus();
        field.selectAll();
        keyClick(Qt.Key_C, Qt.ControlModifier);
        keyClick(Qt.Key_Insert, Qt.ControlModifier);
        keyClick(Qt.Key_X, Qt.ControlModifier);
        keyClick(Qt.Key_Delete, Qt.ShiftModifier);
        keyClick(Qt.Key_V, Qt.ControlModifier);
        keyClick(Qt.Key_Insert, Qt.ShiftModifier);
        compare(field.text, "secret");

        mouseDoubleClickSequence(source, 20, source.height / 2); // to the selection clipboard
        mouseClick(field, 20, field.height / 2, Qt.MiddleButton);
        compare(field.text, "secret");
        mouseDoubleClickSequence(field, 20, field.height / 2);

        source.clear();
        source.forceActiveFocus();
        source.paste();
        compare(source.text, "clip");
        source.clear();
        mouseClick(source, 20, source.height / 2, Qt.MiddleButton);
        verify(!source.text.includes("secret"));
    }

    function test_revealButtonAndPlaceholder(): void {
        const field = create({ enablePasswordMode: true, text: "secret" });
        field.forceActiveFocus();
        const reveal = findChild(field, "revealButton") as ControlButton;
        const placeholder = findChild(field, "placeholder");
        verify(!placeholder.visible);
        compare(field.echoMode, TextInput.Password);
        compare(field.rightPadding, 30 + reveal.width);
        mouseClick(reveal);
        compare(field.echoMode, TextInput.Normal);
        compare(field.holdButtonText, "Hide");
        compare(reveal.x + reveal.width, field.width - 15);
        verify(field.activeFocus, "a click on the button does not take the focus from the field");
        field.reset();
        verify(placeholder.visible && !field.showPassword);
    }

    function test_screenReader(): void {
        const field = create({});
        compare([field.Accessible.name, field.Accessible.description], ["Email", ""]);
        field.enablePasswordMode = true;
        compare(field.Accessible.description, "Email");
        field.fail();
        compare(field.Accessible.description, "Email: The format is incorrect");
    }
}
