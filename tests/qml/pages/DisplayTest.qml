// qmllint disable unqualified
import QtQuick
import QtTest

// A test of a page that steers the display, by the messages that it sends.
TestCase {
    id: test

    // The messages since the last call, without the version queries; numbers count the whole program's
    // messages and are left out.
    function sent(): var {
        return rig.takeMessageTexts().filter(text => !text.startsWith('{"cmd":11,'))
            .map(text => text.replace(/"seq":\d+/, '"seq":#'));
    }

    function scale(movement: int, status: int): string {
        return `{"cmd":18,"cmdtype":"CameraControl","control":"scale","scalestatus":${status},"scaletype":${movement},"seq":#,"type":2}`;
    }

    function preset(number: int, action: int): string {
        return `{"cmd":19,"cmdtype":"CameraControl","control":"preset","presetindex":${number},"presetstatus":${action},"seq":#,"type":2}`;
    }

    function autoFraming(on: bool): string {
        return `{"autoframestatus":${on ? 1 : 0},"cmd":13,"seq":#,"type":2}`;
    }

    function smartFraming(on: bool): string {
        return `{"cmd":15,"seq":#,"smartframestatus":${on ? 1 : 0},"type":2}`;
    }

    // An answer of the display, which asks for no reply.
    function answer(command: int, key: string, value: int): void {
        rig.report(command, JSON.stringify({ cmd: command, seq: 1, type: 1, [key]: value }));
    }

    function centreOf(item: Item): point {
        return item.mapToItem(test, item.width / 2, item.height / 2);
    }

    // Presses the pointer on an item and leaves it there.
    function hold(item: Item): void {
        mouseMove(item);
        mousePress(item);
    }

    name: "Display"
    when: windowShown
    visible: true
    width: 706
    height: 666
}
