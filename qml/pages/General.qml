import QtQuick
import "../controls"

// The installed version, the check for a newer one and the update run.
Item {
    id: page

    readonly property int page_id_root: 0
    readonly property int page_id_update: 1
    readonly property int page_id_updating: 2
    readonly property int page_id_update_failed: 3
    property int currentPage: page_id_root

    readonly property var device: deviceControl // qmllint disable unqualified
    readonly property string currentVersion: device.version
    readonly property string newVersion: device.newVersion
    property bool hasNewVerion: false
    // Milliseconds for which a completed update is shown before the program quits.
    property int quitDelay: 2000
    property alias progress: progress
    // For both labels of the version, without the space between them.
    readonly property real versionWidth: page.width - 2 * 59 - updateButton.width - 45

    // The program has to quit, so that the new version can start.
    signal quitRequested

    function startUpdating(): void {
        progress.start();
        page.currentPage = page.page_id_updating;
        page.device.startUpdate();
    }

    function checkForUpdate(): void {
        if (page.hasNewVerion)
            page.currentPage = page.page_id_update;
        else
            upToDateLabel.visible = true;
    }

    onQuitRequested: Qt.quit()
    // A button that is hidden or disabled would keep the focus.
    onCurrentPageChanged: {
        if (!page.visible)
            return;
        switch (page.currentPage) {
        case page.page_id_root:
            updateButton.forceActiveFocus();
            break;
        case page.page_id_update:
            updateNowButton.forceActiveFocus();
            break;
        case page.page_id_updating:
            updatingPanel.forceActiveFocus();
            break;
        case page.page_id_update_failed:
            retryButton.forceActiveFocus();
            break;
        }
    }

    Connections {
        target: page.device

        function onHasNewVersion(checked: bool): void {
            page.hasNewVerion = checked;
        }
        // Emitted every second until the program quits.
        function onUpdateCompleted(): void {
            newVersionLabel.visible = false;
            progress.complete();
            if (!quitTimer.running)
                quitTimer.start();
        }
    }

    Timer {
        id: quitTimer

        interval: page.quitDelay
        onTriggered: page.quitRequested()
    }

    FittedLabel {
        id: versionLabel

        anchors.left: parent.left
        anchors.leftMargin: 68
        y: 186
        // Two lines above the link, beside the new version and the button.
        maximumWidth: Math.max(page.versionWidth / 2, page.versionWidth - newVersionLabel.implicitWidth)
        maximumHeight: 40
        text: qsTr("Current Version:  %1").arg(page.currentVersion)
        font.pixelSize: Theme.bodyText
    }

    FittedLabel {
        id: newVersionLabel

        objectName: "newVersionLabel"
        anchors.left: versionLabel.right
        anchors.leftMargin: 20
        y: versionLabel.y
        maximumWidth: page.versionWidth - versionLabel.width
        maximumHeight: versionLabel.maximumHeight
        text: qsTr("New Version:  %1").arg(page.newVersion)
        font.pixelSize: Theme.bodyText
        font.italic: Theme.italic
        color: Theme.green
        visible: page.hasNewVerion
        onVisibleChanged: {
            if (visible)
                upToDateLabel.visible = false;
        }
    }

    FittedLabel {
        id: upToDateLabel

        objectName: "upToDateLabel"
        anchors.left: versionLabel.right
        anchors.leftMargin: 20
        y: versionLabel.y
        maximumWidth: page.versionWidth - versionLabel.width
        maximumHeight: versionLabel.maximumHeight
        text: qsTr("You're up to date.")
        font.pixelSize: Theme.bodyText
        font.weight: Font.Bold
        font.italic: Theme.italic
        color: Theme.green
        visible: false

        Announcement {}
    }

    TextLink {
        anchors.left: parent.left
        anchors.leftMargin: 68
        y: 230
        text: qsTr("Term of Use and Privacy Policy")
        maximumWidth: page.width - 2 * anchors.leftMargin
        textColor: Theme.textGrey
        font.pixelSize: Theme.smallText
    }

    QuickButton {
        id: updateButton

        objectName: "updateButton"
        anchors.right: parent.right
        anchors.rightMargin: 59
        y: 180
        width: page.hasNewVerion ? 118 : 156
        height: 36
        radius: Theme.pillRadius
        enabled: page.currentPage === page.page_id_root
        onClicked: page.checkForUpdate()

        CenteredLabel {
            //: Button: offers the update, or looks for one.
            text: page.hasNewVerion ? qsTr("Update") : qsTr("Check for Update")
        }
    }

    UpdatePanel {
        objectName: "offerPanel"
        accessibleName: offerLabel.text
        anchors.horizontalCenter: parent.horizontalCenter
        y: 280
        visible: page.currentPage === page.page_id_update
        onCloseClicked: page.currentPage = page.page_id_root

        Image {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 70
            width: 42
            height: 42
            source: "qrc:/images/update.png"
        }

        PanelLabel {
            id: offerLabel

            y: 140
            text: qsTr("New Version (%1) Found").arg(page.newVersion)

            Announcement {}
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 190
            spacing: 40

            PanelButton {
                objectName: "laterButton"
                normalColor: Theme.white
                border.width: 1
                border.color: Theme.offGrey
                //: Button that closes the offer of an update.
                text: qsTr("Later")
                textColor: Theme.mutedText
                onClicked: page.currentPage = page.page_id_root
            }

            PanelButton {
                id: updateNowButton

                objectName: "updateNowButton"
                text: qsTr("Update Now")
                onClicked: page.startUpdating()
            }
        }
    }

    UpdatePanel {
        id: updatingPanel

        anchors.horizontalCenter: parent.horizontalCenter
        y: 280
        visible: page.currentPage === page.page_id_updating
        accessibleName: updatingLabel.text
        closable: false

        Image {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 60
            source: "qrc:/images/VORN_big.png"
        }

        UpdateProgress {
            id: progress

            // At a whole pixel, to keep the bar's edges sharp.
            x: Math.round((parent.width - width) / 2)
            y: 140
            onTimedOut: {
                page.currentPage = page.page_id_update_failed;
                page.device.updateTimeout();
            }
        }

        PanelLabel {
            id: updatingLabel

            y: 190
            text: qsTr("Updating your VORN APP to New Version (%1)…").arg(page.newVersion)

            Announcement {}
        }
    }

    UpdatePanel {
        objectName: "failedPanel"
        accessibleName: failedLabel.text
        anchors.horizontalCenter: parent.horizontalCenter
        y: 280
        visible: page.currentPage === page.page_id_update_failed
        onCloseClicked: page.currentPage = page.page_id_root

        Image {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 70
            source: "qrc:/images/error_42x42.png"
        }

        PanelLabel {
            id: failedLabel

            y: 140
            text: qsTr("Updating your VORN APP to New Version (%1) failed!").arg(page.newVersion)

            Announcement {}
        }

        PanelButton {
            id: retryButton

            objectName: "retryButton"
            anchors.horizontalCenter: parent.horizontalCenter
            y: 190
            width: 167
            text: qsTr("Retry Update Now")
            onClicked: page.startUpdating()
        }
    }
}
