import QtQuick

// A small switch with square corners, used beside a setting.
QuickSwitch {
    width: 35
    height: 18
    radius: Theme.panelButtonRadius
    handleHeight: 16
    handleRadius: 2
    handleSpacing: 1
    normalColor: Theme.offGrey
    checkedColor: Theme.switchGreen
}
