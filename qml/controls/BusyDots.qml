pragma ComponentBehavior: Bound

import QtQuick

// Three dots that light up one after another while a request runs.
Row {
    id: dots

    property int current: 0

    spacing: 6

    Repeater {
        model: 3

        Rectangle {
            required property int index

            width: 4
            height: 4
            radius: 2
            color: Theme.white
            opacity: index === dots.current ? 1 : 0.4
        }
    }

    Timer {
        interval: 300
        repeat: true
        running: dots.visible
        onTriggered: dots.current = (dots.current + 1) % 3
    }
}
