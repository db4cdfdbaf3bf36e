import QtQuick
import Sulkbox 1.0

Column {
    id: section

    readonly property SystemMonitor sys: monitor
    readonly property var net: sys.network
    readonly property real cellWidth: (width - 10) / 2

    spacing: 8

    PanelHeader {
        objectName: "networkHeader"
        width: parent.width
        title: texts.network
        subtitle: section.net.primaryInterface + " · " + section.net.ipv4
        roastTopic: RoastTopic.network
    }

    Row {
        spacing: 10
        RateCell {
            width: section.cellWidth
            title: texts.download
            rate: section.net.downRate
            history: section.sys.netDownHistory.ordered
            color: Theme.blue
            icon: "arrow-down"
        }
        RateCell {
            width: section.cellWidth
            title: texts.upload
            rate: section.net.upRate
            history: section.sys.netUpHistory.ordered
            color: Theme.green
            icon: "arrow-up"
        }
    }

    InfoPair {
        width: parent.width
        leftLabel: texts.inLabel
        leftIcon: "arrow-down-circle"
        leftValue: fmt.bytes(section.net.totalIn, 1)
        rightLabel: texts.outLabel
        rightIcon: "arrow-up-circle"
        rightValue: fmt.bytes(section.net.totalOut, 1)
    }
}
