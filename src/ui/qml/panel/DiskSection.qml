import QtQuick
import Sulkbox 1.0

Column {
    id: section

    readonly property SystemMonitor sys: monitor
    readonly property var disk: sys.disk
    readonly property var volumes: disk.volumes
    readonly property real cellWidth: (width - 10) / 2

    spacing: 8

    PanelHeader {
        objectName: "diskHeader"
        width: parent.width
        title: texts.disk
        subtitle: fmt.fill(texts.volumesFmt, [String(section.volumes.length)])
        roastTopic: RoastTopic.disk
    }

    Row {
        spacing: 10
        RateCell {
            width: section.cellWidth
            title: texts.read
            rate: section.disk.readRate
            history: section.sys.diskReadHistory.ordered
            color: Theme.purple
            icon: "arrow-down"
        }
        RateCell {
            width: section.cellWidth
            title: texts.write
            rate: section.disk.writeRate
            history: section.sys.diskWriteHistory.ordered
            color: Theme.orange
            icon: "arrow-up"
        }
    }

    Repeater {
        model: section.volumes.length

        Column {
            objectName: "volume"
            readonly property var volume: section.volumes[index]
            readonly property real total: volume ? volume.total : 0
            readonly property real used: volume ? Math.max(volume.total - volume.free, 0) : 0
            // A volume without capacity shows 0 % rather than dividing by zero.
            readonly property real share: volume ? volume.usedShare : 0

            width: section.width
            topPadding: 2
            spacing: 3

            Item {
                width: parent.width
                implicitHeight: Math.max(nameText.implicitHeight, freeText.implicitHeight)
                Text {
                    id: nameText
                    objectName: "name"
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.min(implicitWidth, parent.width - freeText.width - 8)
                    text: volume ? volume.name : ""
                    color: Theme.primary
                    font.pixelSize: 11
                    font.weight: Font.Medium
                    elide: Text.ElideRight
                    maximumLineCount: 1
                }
                Text {
                    id: freeText
                    objectName: "free"
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.min(implicitWidth, parent.width * 0.5)
                    horizontalAlignment: Text.AlignRight
                    text: fmt.fill(texts.freeFmt, [fmt.bytes(volume ? volume.free : 0, 1)])
                    color: Theme.secondary
                    font.pixelSize: 10
                    elide: Text.ElideRight
                    maximumLineCount: 1
                }
            }
            UsageBar {
                objectName: "bar"
                width: parent.width
                barHeight: 5
                fraction: share
                color: fmt.loadColor(share)
            }
            Item {
                width: parent.width
                implicitHeight: ofText.implicitHeight
                Text {
                    id: ofText
                    objectName: "of"
                    width: Math.min(implicitWidth, parent.width - percentText.width - 8)
                    text: fmt.fill(texts.ofFmt, [fmt.bytes(used, 1), fmt.bytes(total, 1)])
                    color: Theme.tertiary
                    font.pixelSize: 9
                    elide: Text.ElideRight
                    maximumLineCount: 1
                }
                Text {
                    id: percentText
                    objectName: "percent"
                    anchors.right: parent.right
                    width: Math.min(implicitWidth, parent.width * 0.4)
                    horizontalAlignment: Text.AlignRight
                    text: fmt.percent(share, 0)
                    color: Theme.tertiary
                    font.pixelSize: 9
                    elide: Text.ElideRight
                    maximumLineCount: 1
                }
            }
        }
    }
}
