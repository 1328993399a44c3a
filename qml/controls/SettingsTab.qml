import QtQuick

// A tab of the settings page. Its width follows the text.
QuickButton {
    id: tab

    required property bool current
    property alias text: label.text
    property real maximumWidth: Infinity

    width: label.width + 30
    height: 36
    radius: Theme.pillRadius
    normalColor: current ? Theme.tabGrey : "transparent"
    hoverColor: Qt.darker(Theme.tabGrey, 1.3)
    pressedColor: Qt.darker(Theme.tabGrey, 1.6)
    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: current

    CenteredLabel {
        id: label

        maximumWidth: tab.maximumWidth - 30
        // Centred in its own width, a single line would stand a part of a pixel beside its place.
        horizontalAlignment: Text.AlignLeft
        font.pixelSize: 18
        minimumPixelSize: 14 // "Launcher App List" in Japanese has no room for more
    }
}
