// qmllint disable unqualified
import QtQuick
import QtQuick.Controls.Basic
import "../../../qml/pages"

DisplayTest {
    id: test

    property MeetingControl page: null

    function init(): void {
        failOnWarning(/./);
        mouseMove(test, 1090, 830);
        test.answer(6, "byod_status", 0);
        page = createTemporaryObject(pageComponent, test) as MeetingControl;
        test.sent();
    }

    function control(name: string): Item {
        return findChild(test.page, name) as Item;
    }

    name: "MeetingControl"
    width: 1092
    height: 835

    Component {
        id: pageComponent

        MeetingControl {}
    }

    function volume(value: int): string {
        return `{"cmd":1,"seq":#,"type":2,"volume":${value}}`;
    }

    // Runs first because of its name: the first volume is reported only once.
    function test_aFirstVolumeEnablesTheSlider(): void {
        const slider = test.control("volumeSlider") as Slider;
        verify(!slider.enabled && slider.layer.enabled && test.control("volumeBadge").layer.enabled);
        mouseClick(slider, 64, 20);
        compare(test.sent(), []);

        test.answer(1, "volume", 20);
        verify(slider.enabled && !slider.layer.enabled && !test.control("volumeBadge").layer.enabled);
        compare(test.control("fill").width, 128);
        mousePress(slider, 128, 26);
        for (let x = 128; x <= 384; x += 16)
            mouseMove(slider, x, 26);
        compare((test.control("volumeValue") as Text).text, "60%");
        compare(test.sent(), []);
        mouseRelease(slider, 384, 26);
        compare(test.sent(), [test.volume(60)]);
        verify(!slider.activeFocus);
        test.answer(1, "volume", 35);
        compare(slider.value, 35);
        compare(test.sent(), []);

        slider.forceActiveFocus();
        keyPress(Qt.Key_Right);
        keyPress(Qt.Key_Right); // auto-repeat
        compare(test.sent(), []);
        keyRelease(Qt.Key_Right);
        compare(test.sent(), [test.volume(37)]);
        slider.increase(); // as a screen reader does
        compare(test.sent(), [test.volume(38)]);
    }
}
