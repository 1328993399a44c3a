import QtQuick

// Text in the application font. The family comes from the context property LatoRegular, which qmllint
// does not know; all other files get the font from this one. A Label of Qt 6.4 would replace its accessible role.
Text {
    font.family: LatoRegular // qmllint disable unqualified
    // Text from the service or the display must not be interpreted as markup.
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft
    verticalAlignment: Text.AlignVCenter
    color: Theme.white
    // Unlike a Label, a Text is unknown to screen readers.
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: text === ""
}
