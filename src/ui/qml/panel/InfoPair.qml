import QtQuick

// Two label/value rows side by side, 16 apart, in equal halves. Without a
// right-hand label the right half stays empty.
Item {
    id: pair

    property string leftLabel
    property string leftValue
    property color leftColor: Theme.primary
    property string leftIcon
    property string rightLabel
    property string rightValue
    property color rightColor: Theme.primary
    property string rightIcon

    readonly property real half: (width - 16) / 2

    implicitHeight: Math.max(left.implicitHeight, right.visible ? right.implicitHeight : 0)

    InfoRow {
        id: left
        width: pair.half
        label: pair.leftLabel
        value: pair.leftValue
        valueColor: pair.leftColor
        icon: pair.leftIcon
    }
    InfoRow {
        id: right
        x: pair.half + 16
        width: pair.half
        visible: pair.rightLabel !== ""
        label: pair.rightLabel
        value: pair.rightValue
        valueColor: pair.rightColor
        icon: pair.rightIcon
    }
}
