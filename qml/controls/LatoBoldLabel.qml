import QtQuick

LatoRegularLabel {
    font.weight: Font.Bold
}
