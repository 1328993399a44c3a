import QtQuick

// Lets a screen reader speak a text when it appears and each time that it changes. Unless set, it is the text of the
// label that contains this item.
Item {
    id: announcement

    property string text: (parent as Text)?.text ?? ""
    readonly property string spoken: visible ? text : ""

    readonly property var speaker: announcer // qmllint disable unqualified

    onSpokenChanged: {
        if (announcement.spoken !== "")
            announcement.speaker.announce(announcement.spoken);
    }
}
