// qmllint disable unqualified
import QtQuick
import QtTest
import "../../../qml"

TestCase {
    id: test

    name: "MainWindow"
    when: windowShown

    Component {
        id: component

        Main {}
    }

    function test_windowReturnsWholeFromAnUnpluggedScreen(): void {
        const main = createTemporaryObject(component, test) as Main;
        tryVerify(() => main.shown);
        main.hide();
        main.x = 20000;
        main.width = 1936; // the scale of that screen
        windowManager.requestShow(true);
        tryVerify(() => main.visible && main.width === 968);
        verify(main.x >= 0 && main.x + main.width <= Screen.width, main.x);
    }
}
