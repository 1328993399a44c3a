import QtQuick
import QtTest
import "../../../qml/controls"

TestCase {
    name: "FittedLabel"
    when: windowShown
    visible: true
    width: 400
    height: 300

    FittedLabel {
        id: label

        x: 20
        y: 20
        font.pixelSize: 20
    }

    function place(text: string, width: real, height: real): void {
        label.text = text;
        label.maximumWidth = width;
        label.maximumHeight = height;
    }

    function test_textWrapsThenShrinksThenIsElided(): void {
        place("Camera Control", 300, 25);
        compare(label.lineCount, 1);
        compare(label.fontInfo.pixelSize, 20);
        place("Camera Control", 100, 60);
        compare(label.lineCount, 2);
        compare(label.fontInfo.pixelSize, 20);
        place("Camera Control", 100, 39);
        compare(label.lineCount, 2);
        verify(label.fontInfo.pixelSize < 20 && label.fontInfo.pixelSize >= 16);
        verify(!label.truncated);
        place("Camera Control", 40, 20);
        verify(label.truncated);
        compare(label.fontInfo.pixelSize, 16);
    }

    function test_elidedTextIsShownWholeUnderThePointer(): void {
        place("Camera Control", 40, 20);
        mouseMove(label, 5, 5);
        tryVerify(() => label.tip !== null && label.tip.shown);
        place("On", 100, 40);
        verify(!label.tip.shown);
    }
}
