import QtQuick
import Sulkbox 1.0

Column {
    id: section

    readonly property SystemMonitor sys: monitor
    readonly property var procs: sys.processes
    readonly property int shownCount: Math.min(procs.length, 6)
    // The busiest process fills its bar; the others are drawn against it.
    readonly property real scale: {
        const top = shownCount > 0 ? procs[0].cpu : 0
        return isFinite(top) ? Math.max(top, 1) : 1
    }

    spacing: 6

    PanelHeader {
        objectName: "processesHeader"
        width: parent.width
        title: texts.topProcesses
        roastTopic: RoastTopic.processes
    }

    Repeater {
        model: section.shownCount

        Column {
            objectName: "processRow"
            readonly property var proc: section.procs[index]
            readonly property real cpu: proc ? proc.cpu : 0

            width: section.width
            topPadding: 1
            spacing: 2

            Item {
                width: parent.width
                implicitHeight: Math.max(nameText.implicitHeight, cpuText.implicitHeight)
                Text {
                    id: nameText
                    objectName: "name"
                    width: Math.min(implicitWidth, parent.width - cpuText.width - 8)
                    text: proc ? proc.name : ""
                    color: Theme.primary
                    font.pixelSize: 11
                    font.weight: Font.Medium
                    elide: Text.ElideRight
                    maximumLineCount: 1
                }
                Text {
                    id: cpuText
                    objectName: "cpu"
                    anchors.right: parent.right
                    width: Math.min(implicitWidth, parent.width * 0.4)
                    horizontalAlignment: Text.AlignRight
                    text: fmt.fixed(cpu, 1) + "%"
                    color: fmt.loadColor(cpu / 100)
                    font.pixelSize: 11
                    font.weight: Font.Medium
                    elide: Text.ElideRight
                    maximumLineCount: 1
                }
            }
            UsageBar {
                objectName: "bar"
                width: parent.width
                barHeight: 4
                fraction: cpu / section.scale
                color: fmt.loadColor(cpu / 100)
            }
        }
    }
}
