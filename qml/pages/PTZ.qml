pragma ComponentBehavior: Bound

import QtQuick
import VORNApp as Vorn
import "../controls"

// Camera controls in two tabs: manual movement and automatic framing.
FocusScope {
    id: panel

    readonly property int page_id_manual: 0
    readonly property int page_id_auto_framing: 1
    property int currentPage: page_id_manual

    readonly property var camera: ptz // qmllint disable unqualified
    readonly property bool autoFraming: camera.autoFraming
    readonly property bool windowShown: Window.visibility !== Window.Hidden && Window.visibility !== Window.Minimized

    // True while the tab follows a report of the display.
    property bool following: false

    function followFraming(): void {
        panel.following = true;
        panel.currentPage = panel.autoFraming ? panel.page_id_auto_framing : panel.page_id_manual;
        panel.following = false;
    }

    onAutoFramingChanged: followFraming()
    onCurrentPageChanged: {
        // A report must not be sent back: the display may have changed the framing again since.
        if (!panel.following)
            panel.camera.setAutoFraming(panel.currentPage === panel.page_id_auto_framing);
        // Takes the focus from a control that was hidden.
        if (manualPage.activeFocus || autoFramingPage.activeFocus)
            tabBar.currentItem.forceActiveFocus();
    }
    onVisibleChanged: {
        const holder = Window.activeFocusItem;
        // Takes the focus unless a visible control has it.
        if (panel.visible && !(holder?.visible && holder.activeFocusOnTab))
            panel.forceActiveFocus();
    }
    Component.onCompleted: followFraming()
    Keys.forwardTo: [movementKeys]

    // A press anywhere on the panel moves the focus here, without taking the press from the item below it.
    PointHandler {
        onActiveChanged: {
            if (active && !panel.activeFocus)
                panel.forceActiveFocus();
        }
    }

    // First in the tab order, and above the dismiss area of the manual page.
    ListView {
        id: tabBar

        objectName: "tabBar"
        anchors.horizontalCenter: parent.horizontalCenter
        y: 60
        z: 1
        Accessible.role: Accessible.PageTabList
        Accessible.name: qsTr("Camera Control")
        width: contentWidth
        height: 36
        orientation: ListView.Horizontal
        interactive: false
        currentIndex: panel.currentPage
        highlightFollowsCurrentItem: false
        //: Titles of two tabs: the camera is moved by hand, or follows the people by itself.
        model: [qsTr("Manual"), qsTr("Auto-Framing")]
        delegate: FramingTab {
            required property int index
            required property string modelData

            objectName: "framingTab" + index
            text: modelData
            roundLeft: (index === 0) !== Theme.mirrored
            current: ListView.isCurrentItem
            onClicked: panel.currentPage = index
        }
    }

    PTZManual {
        id: manualPage

        objectName: "manualPage"
        anchors.fill: parent
        visible: panel.currentPage === panel.page_id_manual
        // Ends a held button when the window is hidden, which does not cancel the press.
        enabled: panel.windowShown

        MovementKeys {
            id: movementKeys

            objectName: "movementKeys"
            focused: panel.activeFocus
            onStarted: movement => panel.camera.scale(movement, Vorn.CameraControl.Btn_Down)
            onEnded: movement => panel.camera.scale(movement, Vorn.CameraControl.Btn_Up)
        }
    }

    FocusScope {
        id: autoFramingPage

        objectName: "autoFramingPage"
        anchors.fill: parent
        visible: panel.currentPage === panel.page_id_auto_framing

        FittedLabel {
            id: smartFramingTitle

            anchors.left: parent.left
            anchors.leftMargin: 131
            y: 126
            maximumWidth: smartFramingSwitch.anchors.leftMargin - anchors.leftMargin - 8
            maximumHeight: 27
            font.weight: Font.Bold
            text: qsTr("Smart-Framing")
            font.pixelSize: Theme.bodyText
        }

        FittedLabel {
            id: smartFramingText

            anchors.left: parent.left
            anchors.leftMargin: 131
            y: 155
            maximumWidth: smartFramingSwitch.anchors.leftMargin - anchors.leftMargin - 8
            text: qsTr("Auto focus on multiple individuals and combine \nin a frame (up to 6 individuals)")
            font.pixelSize: Theme.smallText
            lineHeight: Theme.lineSpacing
        }

        PanelSwitch {
            id: smartFramingSwitch

            objectName: "smartFramingSwitch"
            anchors.left: parent.left
            anchors.leftMargin: 436
            y: 127
            checked: panel.camera.smartFraming
            accessibleName: smartFramingTitle.text
            Accessible.description: smartFramingText.text
            onClicked: panel.camera.setSmartFraming(!panel.camera.smartFraming)
        }
    }
}
