pragma ComponentBehavior: Bound

import QtQuick
import "../controls"

// The face of the main window while a user is signed in: navigation on the left, one of four pages on the right.
Item {
    id: page

    readonly property int page_id_meetings: 0
    readonly property int page_id_camera_control: 1
    readonly property int page_id_personal: 2
    readonly property int page_id_settings: 3
    property int currentPage: page_id_meetings

    readonly property var device: deviceControl // qmllint disable unqualified
    readonly property var service: network // qmllint disable unqualified

    function showNavigationPage(index: int, id: int): void {
        page.currentPage = id;
        navigation.currentIndex = index;
    }

    // The page has no navigation entry, so none is highlighted.
    function showOtherPage(id: int): void {
        page.currentPage = id;
        navigation.currentIndex = -1;
    }

    // Every sign-in starts on the meetings page.
    onVisibleChanged: currentPage = page_id_meetings
    Component.onCompleted: page.service.requestUserProfile()

    Image {
        anchors.left: parent.left
        anchors.leftMargin: 54
        y: 64
        source: "qrc:/images/vorn_logo_105x32.png"
        smooth: true
    }

    AvatarButton {
        objectName: "avatarButton"
        anchors.left: parent.left
        anchors.leftMargin: 54
        y: 133
        maximumWidth: contentArea.anchors.leftMargin - anchors.leftMargin
        current: page.currentPage === page.page_id_personal
        imageSource: page.device.userImage
        text: page.device.firstName
        onClicked: {
            page.showOtherPage(page.page_id_personal);
            page.service.requestUserProfile();
        }
    }

    ListView {
        id: navigation

        anchors.left: parent.left
        anchors.leftMargin: 45
        y: 211
        width: 168
        height: parent.height - y
        spacing: 12
        interactive: false
        currentIndex: 0
        Accessible.role: Accessible.List
        //: Name of the navigation, for screen readers.
        Accessible.name: qsTr("Pages")
        // The arrow keys would move the highlight without changing the page.
        keyNavigationEnabled: false
        model: [
            { text: qsTr("Meetings"), icon: "qrc:/images/meetings.png", id: page.page_id_meetings },
            { text: qsTr("Camera Control"), icon: "qrc:/images/camera_control.png", id: page.page_id_camera_control }
        ]
        delegate: NavigationEntry {
            required property int index
            required property var modelData

            current: ListView.isCurrentItem
            icon: modelData.icon
            text: modelData.text
            onClicked: page.showNavigationPage(index, modelData.id)
        }
    }

    QuickButton {
        objectName: "settingsButton"
        anchors.left: parent.left
        anchors.leftMargin: 45
        y: 593
        width: 168
        height: 36
        radius: Theme.pillRadius
        normalColor: settings.visible ? Theme.buttonGreen : "transparent"
        Accessible.selectable: true
        Accessible.selected: settings.visible
        onClicked: page.showOtherPage(page.page_id_settings)

        Image {
            anchors.left: parent.left
            anchors.leftMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            source: "qrc:/images/settings_16x14.png"
        }

        ButtonLabel {
            anchors.left: parent.left
            anchors.leftMargin: 40
            anchors.verticalCenter: parent.verticalCenter
            maximumWidth: parent.width - anchors.leftMargin - 10
            maximumHeight: parent.height - 2
            text: qsTr("Settings")
            font.pixelSize: Theme.bodyText
        }
    }

    Item {
        id: contentArea

        anchors.left: parent.left
        anchors.leftMargin: 262
        width: parent.width - anchors.leftMargin
        height: parent.height

        // Extends beyond the edge at the navigation, so that only the other corners are round.
        Item {
            anchors.fill: parent
            clip: true

            Rectangle {
                x: Theme.mirrored ? 0 : -radius
                width: parent.width + radius
                height: parent.height
                radius: Theme.windowRadius
                color: page.currentPage === page.page_id_settings ? "#0DBBC7CE" : "transparent"
            }
        }

        Meetings {
            anchors.fill: parent
            visible: page.currentPage === page.page_id_meetings
        }

        CameraControl {
            anchors.fill: parent
            visible: page.currentPage === page.page_id_camera_control
        }

        Personal {
            anchors.fill: parent
            visible: page.currentPage === page.page_id_personal
        }

        Settings {
            id: settings

            anchors.fill: parent
            visible: page.currentPage === page.page_id_settings
        }
    }

    // Declared after the pages, which would cover it otherwise.
    LatoRegularLabel {
        anchors.left: parent.left
        anchors.leftMargin: 871
        y: 621
        width: 61
        height: 15
        text: page.device.version
        color: "#AEC1C3"
        font.pixelSize: Theme.smallText
        font.italic: true
    }
}
