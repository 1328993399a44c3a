import QtQuick

// A tab of the settings page. Its width follows the text.
QuickButton {
    id: tab

    required property bool current
    property alias text: label.text

    width: label.implicitWidth + 30
    height: 36
    radius: Theme.pillRadius
    normalColor: current ? Theme.tabGrey : "transparent"
    hoverColor: Qt.darker(Theme.tabGrey, 1.3)
    pressedColor: Qt.darker(Theme.tabGrey, 1.6)
    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: current

    ButtonLabel {
        id: label

        anchors.centerIn: parent
        font.pixelSize: 18
    }
}
