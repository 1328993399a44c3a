pragma ComponentBehavior: Bound

import QtQuick
import VORNApp as Vorn
import "../controls"

// Steers the display's camera by hand or leaves it to automatic framing, by the tab chosen.
FocusScope {
    id: panel

    readonly property int page_id_manual: 0
    readonly property int page_id_auto_framing: 1
    property int currentPage: page_id_manual

    readonly property var camera: ptz // qmllint disable unqualified
    readonly property bool autoFraming: camera.autoFraming
    readonly property bool windowShown: Window.visibility !== Window.Hidden && Window.visibility !== Window.Minimized

    function followFraming(): void {
        panel.currentPage = panel.autoFraming ? panel.page_id_auto_framing : panel.page_id_manual;
    }

    onAutoFramingChanged: followFraming()
    // A framing that the display reported is no change to the camera object, which then sends nothing.
    onCurrentPageChanged: {
        panel.camera.setAutoFraming(panel.currentPage === panel.page_id_auto_framing);
        // The focus must not stay on a control that nobody sees.
        if (manualPage.activeFocus || autoFramingPage.activeFocus)
            tabBar.currentItem.forceActiveFocus();
    }
    onVisibleChanged: {
        const holder = Window.activeFocusItem;
        // It comes here unless a control that the user sees has it.
        if (panel.visible && !(holder?.visible && holder.activeFocusOnTab))
            panel.forceActiveFocus();
    }
    Component.onCompleted: followFraming()
    Keys.forwardTo: [movementKeys]

    // A press anywhere on the panel brings the keys here, and goes on to what it meets.
    PointHandler {
        onActiveChanged: {
            if (active && !panel.activeFocus)
                panel.forceActiveFocus();
        }
    }

    PTZManual {
        id: manualPage

        objectName: "manualPage"
        anchors.fill: parent
        visible: panel.currentPage === panel.page_id_manual
        // A window that hides takes no pointer away by itself.
        enabled: panel.windowShown

        MovementKeys {
            id: movementKeys

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

        LatoBoldLabel {
            id: smartFramingTitle

            x: 131
            y: 126
            text: qsTr("Smart-Framing")
            font.pixelSize: Theme.bodyText
        }

        LatoRegularLabel {
            id: smartFramingText

            x: 131
            y: 155
            text: qsTr("Auto focus on multiple individuals and combine \nin a frame (up to 6 individuals)")
            font.pixelSize: Theme.smallText
        }

        PanelSwitch {
            objectName: "smartFramingSwitch"
            x: 436
            y: 127
            checked: panel.camera.smartFraming
            accessibleName: smartFramingTitle.text
            Accessible.description: smartFramingText.text
            onClicked: panel.camera.setSmartFraming(!panel.camera.smartFraming)
        }
    }

    // Last, so that the manual page's dismiss area leaves the tabs free.
    ListView {
        id: tabBar

        objectName: "tabBar"
        anchors.horizontalCenter: parent.horizontalCenter
        y: 60
        width: contentWidth
        height: 36
        orientation: ListView.Horizontal
        interactive: false
        currentIndex: panel.currentPage
        highlightFollowsCurrentItem: false
        model: [qsTr("Manual"), qsTr("Auto-Framing")]
        delegate: FramingTab {
            required property int index
            required property string modelData

            objectName: "framingTab" + index
            text: modelData
            roundLeft: index === 0
            current: ListView.isCurrentItem
            onClicked: panel.currentPage = index
        }
    }
}
