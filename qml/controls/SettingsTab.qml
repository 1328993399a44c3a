import QtQuick

// One tab of the settings page, as wide as its text asks for.
QuickButton {
    id: tab

    required property bool current
    property alias text: label.text

    width: label.implicitWidth + 30
    height: 36
    radius: 18
    normalColor: current ? "#28D8D8D8" : "transparent"
    hoverColor: Qt.darker("#28D8D8D8", 1.3)
    pressedColor: Qt.darker("#28D8D8D8", 1.6)
    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: current

    LatoRegularLabel {
        id: label

        anchors.centerIn: parent
        font.pixelSize: 18
    }
}
