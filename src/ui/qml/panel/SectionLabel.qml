import QtQuick

// A small upper-case caption above a group of rows.
Text {
    property string label
    text: label.toUpperCase()
    topPadding: 2
    color: Theme.tertiary
    font.pixelSize: 9
    font.weight: Font.DemiBold
    elide: Text.ElideRight
    maximumLineCount: 1
}
