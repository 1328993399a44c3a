import QtQuick
import "../controls"

// Base of the login forms: title, sub-line, the service's error text and the submit button.
Item {
    id: form

    // The fields. They are before the button in the tab order.
    default property alias fieldItems: slot.data
    property alias title: titleLabel.text
    property alias subline: sublineLabel.text
    // Text of the link after the sub-line; no link when empty.
    property alias linkText: link.text
    property alias submitText: submitButton.text
    property alias busy: submitButton.busy
    property alias submitY: submitButton.y
    property alias submitButton: submitButton
    property alias serverResponse: responseLabel.text
    property alias serverResponseColor: responseLabel.color
    // True when the lowest field shows an error, which a second line of the service's text would cover.
    property bool errorBelowFields: false
    // True where the sub-line is news and has to be spoken.
    property bool tellsSubline: false
    // Maximum width of the service's error text.
    property real responseWidth: width - responseLabel.anchors.leftMargin

    // Room up to the window's edge.
    readonly property real maximumWidth: 427

    signal linkClicked
    signal submitted

    width: 375
    Accessible.role: Accessible.Pane
    Accessible.name: title
    Accessible.focusable: true

    FittedLabel {
        id: titleLabel

        anchors.left: parent.left
        y: 84
        maximumWidth: form.maximumWidth
        maximumHeight: 56
        font.weight: Font.Bold
        font.pixelSize: 36
        Accessible.role: Accessible.Heading
    }

    FittedLabel {
        id: sublineLabel

        anchors.left: parent.left
        y: 143
        maximumWidth: form.maximumWidth - (link.visible ? link.width + 5 : 0)
        maximumHeight: 50
        // An e-mail address can be wider than the window.
        wrapMode: Text.Wrap
        color: Theme.textGrey
        font.pixelSize: Theme.noteText
        lineHeight: Theme.lineSpacing

        Announcement {
            visible: form.tellsSubline
        }
    }

    TextLink {
        id: link

        anchors.left: sublineLabel.right
        anchors.leftMargin: 5
        y: sublineLabel.y
        maximumWidth: form.maximumWidth / 2
        visible: text !== ""
        onClicked: form.linkClicked()
    }

    Item {
        id: slot

        anchors.fill: parent
    }

    LatoRegularLabel {
        id: responseLabel

        anchors.left: parent.left
        anchors.leftMargin: 15
        y: submitButton.y - height - 5
        width: Math.min(implicitWidth, form.responseWidth)
        wrapMode: Text.Wrap
        elide: Text.ElideRight
        maximumLineCount: form.errorBelowFields ? 1 : 2
        font.pixelSize: Theme.noteText
        visible: text !== ""

        Announcement {}
    }

    SubmitButton {
        id: submitButton

        width: 375
        onSubmitted: form.submitted()
    }
}
