// qmllint disable unqualified
import QtQuick
import QtTest

// Test of a page that controls the display, through the messages that it sends.
TestCase {
    id: test

    // The messages since the last call, without version queries and with their sequence numbers replaced by "#".
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

    // Delivers an answer of the display, which needs no reply.
    function answer(command: int, key: string, value: int): void {
        rig.report(command, JSON.stringify({ cmd: command, seq: 1, type: 1, [key]: value }));
    }

    function centreOf(item: Item): point {
        return item.mapToItem(test, item.width / 2, item.height / 2);
    }

    // Presses the pointer on an item and keeps it pressed.
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
