// qmllint disable unqualified
import QtQuick
import QtTest

TestCase {
    name: "Rig"
    when: windowShown

    function test_reportsReachTheObjects(): void {
        rig.report(0, '{"cmd":0,"type":2,"seq":1,"isReady":1}');
        compare(deviceControl.connectMode, 1);
    }
}
