import QtQuick
import Sulkbox 1.0

// A module's title, an optional subtitle under it and an optional figure on
// the right, on the title's baseline. With a roast topic, a click anywhere
// on it asks the model for a roast of that module.
Item {
    id: header

    property string title
    property string subtitle
    property string trailing
    property color accent: Theme.accent
    property int roastTopic: -1
    readonly property SystemMonitor sys: monitor

    // The title sits lower when the figure on the right is taller, so that
    // both share one baseline.
    readonly property real titleDrop: trailingText.visible
        ? Math.max(0, trailingText.baselineOffset - titleText.baselineOffset) : 0

    implicitHeight: Math.max(titles.y + titles.implicitHeight,
                             trailingText.visible ? trailingText.y + trailingText.implicitHeight : 0)

    Column {
        id: titles
        y: header.titleDrop
        width: parent.width - (trailingText.visible ? trailingText.width + 8 : 0)
        spacing: 1

        Text {
            id: titleText
            width: parent.width
            text: header.title
            color: Theme.primary
            font.pixelSize: 13
            font.weight: Font.DemiBold
            elide: Text.ElideRight
            maximumLineCount: 1
        }
        Text {
            width: parent.width
            visible: header.subtitle !== ""
            text: header.subtitle
            color: Theme.secondary
            font.pixelSize: 10
            elide: Text.ElideRight
            maximumLineCount: 1
        }
    }

    Text {
        id: trailingText
        visible: header.trailing !== ""
        anchors.right: parent.right
        y: titles.y + titleText.baselineOffset - baselineOffset
        width: Math.min(implicitWidth, header.width * 0.5)
        horizontalAlignment: Text.AlignRight
        text: header.trailing
        color: header.accent
        font.pixelSize: 15
        font.weight: Font.DemiBold
        elide: Text.ElideRight
        maximumLineCount: 1
    }

    RoastTap {
        objectName: "roastTap"
        enabled: header.roastTopic >= 0
        onTapped: header.sys.roast(header.roastTopic)
    }
}
