import QtQuick

// The small square switch beside a setting.
QuickSwitch {
    width: 35
    height: 18
    radius: 4
    handleHeight: 16
    handleRadius: 2
    handleSpacing: 1
    normalColor: "#9B9B9B"
    checkedColor: "#4EB857"
}
