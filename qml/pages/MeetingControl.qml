import QtQuick
import Qt5Compat.GraphicalEffects
import "../controls"

// Overview of the display: clock, volume and source. No navigation entry opens this page.
Item {
    id: page

    readonly property var device: deviceControl // qmllint disable unqualified
    // True once the display has reported its volume.
    property bool volumeKnown: false
    property date now: new Date()

    width: 1092
    height: 835

    Timer {
        interval: 1000
        repeat: true
        triggeredOnStart: true
        running: page.visible
        onTriggered: page.now = new Date()
    }

    Connections {
        target: page.device

        function onVolumeReady(): void {
            page.volumeKnown = true;
        }
    }

    // DeviceControl does not declare this signal.
    Connections {
        target: page.device
        ignoreUnknownSignals: true

        function onDeviceNotConnected(): void {
            page.volumeKnown = false;
        }
    }

    FittedLabel {
        Accessible.role: Accessible.Heading
        anchors.left: parent.left
        anchors.leftMargin: 60
        y: 80
        maximumWidth: 700
        maximumHeight: 90
        font.weight: Font.Bold
        text: qsTr("Hello!\nWelcome to VORN!")
        font.pixelSize: 30
        lineHeight: Theme.lineSpacing
    }

    LatoBoldLabel {
        id: time

        objectName: "time"
        anchors.left: parent.left
        anchors.leftMargin: 938
        y: 100
        //: Form of the time in the way of Qt: HH or hh hours, mm minutes, AP morning or afternoon.
        text: page.now.toLocaleTimeString(Qt.locale(), qsTr("hh:mm AP"))
        font.pixelSize: Theme.headingText
        horizontalAlignment: Text.AlignRight
    }

    LatoRegularLabel {
        objectName: "date"
        anchors.right: time.right
        y: 133
        //: Form of the date in the way of Qt: ddd name of the day, MMM name of the month.
        text: page.now.toLocaleDateString(Qt.locale(), qsTr("ddd, MMM dd, yyyy"))
        font.pixelSize: Theme.bodyText
    }

    Rectangle {
        anchors.left: parent.left
        anchors.leftMargin: 60
        y: 192
        width: 972
        height: 1
        color: Theme.ruleGrey
    }

    LatoBoldLabel {
        Accessible.role: Accessible.Heading
        anchors.left: parent.left
        anchors.leftMargin: 60
        y: 242
        text: qsTr("Device Control")
        font.pixelSize: Theme.headingText
    }

    Item {
        id: badge

        objectName: "volumeBadge"
        anchors.left: parent.left
        anchors.leftMargin: 60
        y: 297
        width: 82
        height: 82
        layer.enabled: !page.volumeKnown
        layer.effect: Desaturate {
            desaturation: 1
        }

        Rectangle {
            anchors.fill: parent
            radius: 41
            color: "#264EB857"
        }

        Image {
            anchors.centerIn: parent
            source: "qrc:/images/volume_green.png"
        }
    }

    FittedLabel {
        id: volumeTitle

        anchors.left: parent.left
        anchors.leftMargin: 162
        y: 314
        maximumWidth: slider.anchors.leftMargin - anchors.leftMargin - 12
        maximumHeight: 60
        text: qsTr("VORN K4V\nVolume")
        font.pixelSize: Theme.bodyText
        lineHeight: Theme.lineSpacing
    }

    VolumeSlider {
        id: slider

        objectName: "volumeSlider"
        anchors.left: parent.left
        anchors.leftMargin: 281
        y: 312
        enabled: page.volumeKnown
        volume: page.device.volume
        layer.enabled: !page.volumeKnown
        layer.effect: Desaturate {
            desaturation: 1
        }
        Accessible.name: volumeTitle.text.replace("\n", " ")
        onPicked: volume => page.device.setVolume(volume)
    }

    LatoRegularLabel {
        objectName: "volumeValue"
        anchors.left: parent.left
        anchors.leftMargin: 941
        y: 329
        //: A percentage.
        text: qsTr("%1%").arg(slider.value)
        font.pixelSize: Theme.bodyText
    }

    Rectangle {
        anchors.left: parent.left
        anchors.leftMargin: 60
        y: 419
        width: 972
        height: 1
        color: Theme.ruleGrey
    }

    LatoBoldLabel {
        Accessible.role: Accessible.Heading
        anchors.left: parent.left
        anchors.leftMargin: 60
        y: 460
        //: Heading above the two things that the display can show.
        text: qsTr("Device Source Mode")
        font.pixelSize: Theme.headingText
    }

    SourceCard {
        objectName: "byodCard"
        anchors.left: parent.left
        anchors.leftMargin: 60
        y: 515
        value: page.device.byodSwitch
        title: qsTr("Smart Connect Mode")
        text: qsTr("Utilize VORN’s Camera, Mic, Touch as\nlaptop’s peripherals")
        greySource: "qrc:/images/byod_gray.png"
        greenSource: "qrc:/images/byod_green.png"
        onClicked: {
            page.device.setByodSwitch(2);
            page.device.setZoomSwitch(0);
        }
    }

    SourceCard {
        objectName: "zoomCard"
        anchors.left: parent.left
        anchors.leftMargin: 510
        y: 515
        value: page.device.zoomSwitch
        title: qsTr("Screen Share")
        text: qsTr("Mirror screen from your desktop to the\nZoom Room screen")
        greySource: "qrc:/images/zoom_gray.png"
        greenSource: "qrc:/images/zoom_green.png"
        onClicked: {
            page.device.setByodSwitch(0);
            page.device.setZoomSwitch(2);
        }
    }
}
