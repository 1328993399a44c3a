import QtQuick

// Progress of the update as a bar and a percentage. The updater reports no progress, so the bar rises with
// time up to 99 % and stays there until the update is complete or times out.
Row {
    id: root

    property real value: 0
    property bool greyed: false
    // Milliseconds.
    property int stepInterval: 200
    property int timeout: 120000
    readonly property bool running: timer.running
    // Milliseconds since the first step, -1 before it: a sum of intervals, which follow a monotonic clock.
    property int elapsed: -1

    signal timedOut

    function start(): void {
        root.greyed = false;
        root.value = 0;
        root.elapsed = -1;
        timer.restart();
    }

    function complete(): void {
        timer.stop();
        root.value = 100;
    }

    function step(): void {
        if (root.value < 99)
            root.value += 1;
        const isFirst = root.elapsed < 0;
        root.elapsed = isFirst ? 0 : root.elapsed + root.stepInterval;
        if (!isFirst && root.elapsed >= root.timeout) {
            timer.stop();
            root.greyed = true;
            root.timedOut();
        }
    }

    spacing: 12
    Accessible.role: Accessible.ProgressBar
    //: Name of the progress bar, for screen readers.
    Accessible.name: qsTr("Update progress")
    Accessible.description: label.text

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 400
        height: 8
        radius: 7
        color: Theme.panelGrey

        Rectangle {
            width: parent.width * root.value / 100
            height: parent.height
            radius: parent.radius
            color: root.greyed ? Theme.offGrey : Theme.switchGreen
        }
    }

    LatoRegularLabel {
        id: label

        //: A percentage.
        text: qsTr("%1%").arg(root.value)
        font.pixelSize: Theme.bodyText
        color: Theme.panelText
        Accessible.ignored: true // the value of the progress bar

        Announcement {
            text: root.value === 100 ? root.Accessible.name + " " + label.text : ""
        }
    }

    Timer {
        id: timer

        interval: root.stepInterval
        repeat: true
        onTriggered: root.step()
    }
}
