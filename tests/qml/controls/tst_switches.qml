pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import "../../../qml/controls"

TestCase {
    id: test

    name: "Switches"
    when: windowShown
    visible: true
    width: 400
    height: 300

    Component {
        id: switchComponent

        QuickSwitch {
            property int clicks: 0

            duration: 100
            onClicked: {
                ++clicks;
                checked = !checked;
            }
        }
    }

    Component {
        id: boxComponent

        CircularCheckBox {
            property int clicks: 0

            text: "Zoom"
            onClicked: ++clicks
        }
    }

    CircularImage {
        id: picture

        imageSource: Qt.resolvedUrl("../../../qml/images/background_1_437x576.png")
    }

    function test_pictureIsDecodedAtItsShownSize(): void {
        const image = picture.children[0] as Image;
        tryCompare(image, "status", Image.Ready);
        compare([image.implicitWidth, image.implicitHeight], [84, 111]);
    }

    function test_switchIgnoresClicksWhileItMoves(): void {
        const toggle = createTemporaryObject(switchComponent, test) as QuickSwitch;
        const handle = toggle.children[0];
        compare(handle.x, 0);
        verify(!toggle.isAnimating);
        toggle.forceActiveFocus();
        mouseClick(toggle);
        verify(toggle.checked);
        verify(toggle.isAnimating);
        mouseClick(toggle);
        keyClick(Qt.Key_Space);
        compare(toggle["clicks"], 1);
        tryVerify(() => !toggle.isAnimating);
        compare(handle.x, 60);
        compare(toggle.color, toggle.checkedColor);
        verify(toggle.activeFocus, "the animation does not take the focus");
        keyClick(Qt.Key_Space);
        compare(toggle["clicks"], 2);
    }

    function test_reducedMotionMovesTheSwitchAtOnce(): void {
        const toggle = createTemporaryObject(switchComponent, test) as QuickSwitch;
        Theme.reducedMotion = true;
        mouseClick(toggle);
        Theme.reducedMotion = false;
        verify(!toggle.isAnimating);
        compare(toggle.children[0].x, 60);
    }

    function test_ownerDecides_data(): var {
        return [
            { tag: "label", act: box => mouseClick(box, box.width - 2, box.height / 2) },
            { tag: "Space", act: () => keyClick(Qt.Key_Space) },
            { tag: "screen reader press", act: box => box.Accessible.pressAction() },
            { tag: "screen reader toggle", act: box => box.Accessible.toggleAction() },
        ];
    }

    function test_ownerDecides(data: var): void {
        const box = createTemporaryObject(boxComponent, test) as CircularCheckBox;
        box.forceActiveFocus();
        data.act(box);
        compare(box["clicks"], 1);
        verify(!box.checked);
        verify(!box.Accessible.checked);
        box.checked = true;
        verify(box.Accessible.checked);
        compare(box.Accessible.name, "Zoom");
    }
}
