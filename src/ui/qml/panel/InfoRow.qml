import QtQuick
import Sulkbox 1.0

// An optional icon, a label, and a value on the right. When space runs out
// both truncate, the value last.
Item {
    id: row

    property string label
    property string value
    property color valueColor: Theme.primary
    property string icon

    readonly property real labelX: icon !== "" ? 14 + 6 : 0
    readonly property real room: Math.max(0, width - labelX - 8)

    implicitHeight: Math.max(labelText.implicitHeight, valueText.implicitHeight)

    Icon {
        visible: row.icon !== ""
        name: row.icon
        color: Theme.secondary
        width: 14
        height: 10
        anchors.verticalCenter: parent.verticalCenter
    }

    Text {
        id: labelText
        x: row.labelX
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, row.room - valueText.width)
        text: row.label
        color: Theme.secondary
        font.pixelSize: 11
        elide: Text.ElideRight
        maximumLineCount: 1
    }

    Text {
        id: valueText
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, Math.max(row.room - labelText.implicitWidth, row.room * 0.6))
        horizontalAlignment: Text.AlignRight
        text: row.value
        color: row.valueColor
        font.pixelSize: 11
        font.weight: Font.Medium
        elide: Text.ElideRight
        maximumLineCount: 1
    }
}
