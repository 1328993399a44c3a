pragma Singleton

import QtQuick

// The colours, radii and text sizes that several files share. A value that only one control uses stays
// with that control.
QtObject {
    id: theme

    readonly property SystemPalette system: SystemPalette {}
    // The user has asked the system for high contrast. Qt says so from 6.10 on. Before that only a palette of pure
    // black and white shows it, as on Windows with a contrast theme of two colours.
    property bool highContrast: Application.styleHints.accessibility?.contrastPreference === 1 // qmllint disable
                                || theme.contrast(system.window, system.windowText) > 20

    // The user has asked the system to do without animations. Set by the main window.
    property bool reducedMotion: false

    // Contrast ratio of two opaque colours, from 1 to 21 (WCAG 2).
    function contrast(one: color, other: color): real {
        const linear = part => part <= 0.03928 ? part / 12.92 : Math.pow((part + 0.055) / 1.055, 2.4);
        const luminance = shade => 0.2126 * linear(shade.r) + 0.7152 * linear(shade.g) + 0.0722 * linear(shade.b);
        const [dark, light] = [luminance(one), luminance(other)].sort((a, b) => a - b);
        return (light + 0.05) / (dark + 0.05);
    }

    // The language is written from right to left, and the layout with it.
    readonly property bool mirrored: Qt.application.layoutDirection === Qt.RightToLeft // qmllint disable
    // Arabic has no italic letters, and few fonts slant them.
    readonly property bool italic: !mirrored

    readonly property color windowColor: "#282828"
    // Selection and links.
    readonly property color green: "#4DAF4E"
    // Primary buttons and the current entry, with a white text.
    readonly property color buttonGreen: highContrast ? "#32853A" : green
    // Switches, bars and buttons on white panels.
    readonly property color switchGreen: highContrast ? "#32853A" : "#4EB857"
    // Focus ring on white panels, where the other green has too little contrast.
    readonly property color focusOnWhite: "#2E7D32"
    readonly property color errorRed: highContrast ? "#FF8080" : "#DB4747"

    readonly property color white: "#FFFFFF"
    readonly property color textGrey: "#BBC7CE"
    readonly property color placeholderGrey: highContrast ? textGrey : "#80BBC7CE"
    readonly property color disabledGrey: highContrast ? "#8F9BA1" : "#4DBBC7CE"
    readonly property color panelText: "#2C2C2C"
    readonly property color mutedText: "#6D6E71"
    // Texts of less importance on the window's colour.
    readonly property color quietText: highContrast ? textGrey : mutedText
    readonly property color hintText: highContrast ? textGrey : "#7C818D"

    // A switch that is off, a bar that has stopped, an outline on white.
    readonly property color offGrey: "#9B9B9B"
    // The unfilled part of a slider, and a card that is not available.
    readonly property color trackGrey: "#F5F5F5"
    readonly property color panelGrey: "#EBEBEB"
    readonly property color ruleGrey: "#D3D8DC"
    // A tab, current or outlined.
    readonly property color tabGrey: "#28D8D8D8"
    // Pads and preset buttons of the camera page.
    readonly property color padGrey: "#0CBBC7CE"

    readonly property int panelButtonRadius: 4
    readonly property int padRadius: 7
    readonly property int windowRadius: 10
    readonly property int panelRadius: 15
    // Buttons and fields 36 pixels high with round ends.
    readonly property int pillRadius: 18

    readonly property int smallText: 12
    readonly property int noteText: 14
    readonly property int bodyText: 16
    readonly property int headingText: 21
    readonly property int faceText: 24
    // Of texts with more than one line, whose lines would touch otherwise.
    readonly property real lineSpacing: 1.2
    readonly property int monitorText: 32
}
