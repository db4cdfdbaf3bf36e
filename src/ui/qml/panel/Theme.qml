pragma Singleton
import QtQuick

// Colours and type sizes of the panel. Colours come from the desktop's
// palette (light or dark) and follow it when it changes; the foreground
// styles are the text colour at decreasing strength.
QtObject {
    id: theme

    readonly property SystemPalette palette: SystemPalette { colorGroup: SystemPalette.Active }

    readonly property color window: palette.window
    readonly property color primary: palette.windowText
    readonly property bool dark: window.hslLightness < 0.5
    readonly property color secondary: alpha(primary, dark ? 0.62 : 0.64)
    readonly property color tertiary: alpha(primary, dark ? 0.44 : 0.46)
    readonly property color separator: alpha(primary, dark ? 0.16 : 0.13)
    readonly property color cardFill: alpha(primary, 0.04)
    readonly property color buttonFill: alpha(primary, 0.07)
    readonly property color trackFill: alpha(primary, 0.10)
    readonly property color accent: palette.highlight

    // The named colours, the same mid-tones as the mood tints, so that they
    // read on light and dark panels alike.
    readonly property color green: "#28a048"
    readonly property color blue: "#287ce0"
    readonly property color orange: "#d67814"
    readonly property color purple: "#965adc"

    readonly property string emojiFamily: "Noto Color Emoji"

    function alpha(c, a) {
        return Qt.rgba(c.r, c.g, c.b, a)
    }
}
