import QtQuick

// The text of a control, which screen readers already read as the control's name.
FittedLabel {
    Accessible.ignored: true
}
