pragma ComponentBehavior: Bound

import QtQuick
import "../controls"

// The settings page with three tabs.
Item {
    id: page

    readonly property int page_id_general: 0
    readonly property int page_id_launcherAppList: 1
    readonly property int page_id_byodSwitch: 2
    property int currentPage: page_id_general

    FittedLabel {
        anchors.left: parent.left
        anchors.leftMargin: 50
        y: 67
        maximumWidth: page.width - 2 * anchors.leftMargin
        font.weight: Font.Bold
        text: qsTr("Settings")
        font.pixelSize: Theme.headingText
        Accessible.role: Accessible.Heading
    }

    ListView {
        id: tabBar

        anchors.left: parent.left
        anchors.leftMargin: 50
        y: 111
        width: 600
        height: 36
        spacing: 40
        Accessible.role: Accessible.PageTabList
        Accessible.name: qsTr("Settings")
        orientation: ListView.Horizontal
        interactive: false
        keyNavigationEnabled: false
        model: [
            //: Title of a tab.
            { text: qsTr("General"), id: page.page_id_general },
            //: Title of a tab.
            { text: qsTr("Launcher App List"), id: page.page_id_launcherAppList },
            //: Title of a tab.
            { text: qsTr("BYOD Switch"), id: page.page_id_byodSwitch }
        ]
        delegate: SettingsTab {
            required property int index
            required property var modelData

            current: ListView.isCurrentItem
            text: modelData.text
            maximumWidth: 190
            onClicked: {
                page.currentPage = modelData.id;
                tabBar.currentIndex = index;
            }
        }
    }

    Rectangle {
        anchors.left: parent.left
        anchors.leftMargin: 50
        y: 164
        width: 656
        height: 1
        color: "#4A4A4B"
    }

    General {
        anchors.fill: parent
        visible: page.currentPage === page.page_id_general
    }

    LauncherAppList {
        anchors.fill: parent
        visible: page.currentPage === page.page_id_launcherAppList
    }

    ByodSwitch {
        anchors.fill: parent
        visible: page.currentPage === page.page_id_byodSwitch
    }
}
