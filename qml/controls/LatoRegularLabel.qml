import QtQuick
import QtQuick.Templates as T

// A text in the application's font. The family arrives as the context property LatoRegular, which
// the linter cannot see; every other file takes the font from here.
T.Label {
    font.family: LatoRegular // qmllint disable unqualified
    // What comes from outside must not be read as markup.
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft
    verticalAlignment: Text.AlignVCenter
    color: Theme.white
}
