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

    function test_windowReturnsFromAnUnpluggedScreen_data(): var {
        return [{ tag: "right", x: 20000, y: 100 }, { tag: "above and left", x: -900, y: -600 }];
    }

    function test_windowReturnsFromAnUnpluggedScreen(data: var): void {
        const main = createTemporaryObject(component, test) as Main;
        tryVerify(() => main.shown);
        main.hide();
        main.x = data.x;
        main.y = data.y;
        windowManager.requestShow(true);
        tryVerify(() => main.visible);
        verify(main.x >= 0 && main.x + main.width <= Screen.width, main.x);
        verify(main.y >= 0 && main.y + main.height <= Screen.height, main.y);
        // At a scale where it does not fit, its title buttons can be seen.
        main.width = Screen.width + 500;
        windowManager.requestShow(true);
        tryVerify(() => main.x + main.width === Screen.width);
    }
}
