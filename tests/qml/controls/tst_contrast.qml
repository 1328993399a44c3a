import QtQuick
import QtTest
import "../../../qml/controls"

// The palette that replaces colours of too little contrast when the system asks for it.
TestCase {
    name: "Contrast"

    function test_textsAreReadableInHighContrast(): void {
        verify(!Theme.highContrast);
        compare(Theme.errorRed, Qt.color("#DB4747"));
        Theme.highContrast = true;
        for (const text of [Theme.green, Theme.errorRed, Theme.textGrey, Theme.placeholderGrey, Theme.disabledGrey,
                            Theme.quietText, Theme.hintText])
            verify(Theme.contrast(text, Theme.windowColor) >= 4.5, text);
        for (const fill of [Theme.buttonGreen, Theme.switchGreen])
            verify(Theme.contrast(Theme.white, fill) >= 4.5, fill);
        Theme.highContrast = false;
    }
}
