pragma Singleton

import QtQuick

// Looks that controls share, made of the published sizes and colours.
QtObject {
    readonly property color text: "#d4d4d4"
    readonly property color dimText: defaultGrayColor
    readonly property color active: activeColor
    readonly property color panel: GlobalDarkerColor
    readonly property color well: GlobalDarkestColor
    readonly property color line: "#4a4a4a"
    readonly property color focusLine: LinkColor
    readonly property color warning: "#e0574a"

    readonly property color button: GlobalButtonColor
    readonly property color buttonHovered: "#2c2c2c"
    readonly property color buttonPressed: "#161616"
    // A trace of the active colour, so that the lines of an icon keep their contrast.
    readonly property color toggled: "#4d3610"
    readonly property color toggledHovered: "#5c4013"
    readonly property color toggledLine: "#8a5a0c"

    readonly property real disabledOpacity: 0.4

    readonly property int controlHeight: DefFontSizeNormal_x2
    readonly property int iconSize: DefFontSizeNormal_x2 - 2 * DefFontSizePico
    readonly property int smallIconSize: DefFontSizeNormal + DefFontSizePico
    readonly property int padding: DefFontSizeNormal_TwoThirds
    readonly property int spacing: DefFontSizeMicro
    readonly property int corner: globalCorner

    readonly property int fadeMs: 120
}
