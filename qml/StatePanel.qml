import QtQuick

// The display's state as it stands, and its volume to change.
Item {
    id: panel

    // qmllint disable unqualified
    readonly property int connectMode: deviceControl.connectMode
    readonly property int volume: deviceControl.volume
    readonly property int byodSwitch: deviceControl.byodSwitch
    readonly property int zoomSwitch: deviceControl.zoomSwitch
    readonly property string remoteVersion: deviceControl.remoteVer
    // qmllint enable unqualified
    property string sent: qsTr("nothing yet")

    function connectionText(mode: int): string {
        switch (mode) {
        case 0:
            return qsTr("No display connected");
        case 1:
            return qsTr("Display connected");
        case 2:
            return qsTr("Display connected, waiting for its first-run set-up");
        default:
            return qsTr("Display connected in an unsupported mode");
        }
    }

    function sourceText(value: int): string {
        switch (value) {
        case 0:
            return qsTr("unavailable");
        case 1:
            return qsTr("available");
        default:
            return qsTr("selected");
        }
    }

    function changeVolume(step: int): void {
        const wanted = Math.max(0, Math.min(100, panel.volume + step));
        if (wanted === panel.volume)
            return;
        deviceControl.setVolume(wanted); // qmllint disable unqualified
        panel.sent = qsTr("volume %1").arg(wanted);
    }

    Image {
        x: 54
        y: 64
        source: "qrc:/images/vorn_logo_105x32.png"
    }

    LatoBoldLabel {
        x: 54
        y: 140
        font.pixelSize: 24
        text: panel.connectionText(panel.connectMode)
    }

    Grid {
        x: 54
        y: 210
        columns: 2
        columnSpacing: 60
        rowSpacing: 22

        Repeater {
            model: [qsTr("Volume"), panel.volume + " %", qsTr("BYOD source"), panel.sourceText(panel.byodSwitch), qsTr("Room meeting"), panel.sourceText(panel.zoomSwitch), qsTr("Firmware"), panel.remoteVersion === "" ? qsTr("not reported") : panel.remoteVersion, qsTr("Sent to the display"), panel.sent]

            LatoRegularLabel {
                required property int index
                required property string modelData

                font.pixelSize: 16
                color: index % 2 === 0 ? "#BBC7CE" : "#FFFFFF"
                text: modelData
            }
        }
    }

    Row {
        x: 54
        y: 470
        spacing: 20

        QuickButton {
            width: 120
            height: 36
            radius: 18
            accessibleName: qsTr("Volume down")
            onClicked: panel.changeVolume(-5)

            LatoRegularLabel {
                anchors.centerIn: parent
                font.pixelSize: 16
                text: qsTr("Volume -")
            }
        }

        QuickButton {
            width: 120
            height: 36
            radius: 18
            accessibleName: qsTr("Volume up")
            onClicked: panel.changeVolume(5)

            LatoRegularLabel {
                anchors.centerIn: parent
                font.pixelSize: 16
                text: qsTr("Volume +")
            }
        }
    }
}
