import QtQuick
import Sulkbox 1.0

Column {
    id: section

    readonly property SystemMonitor sys: monitor
    readonly property var cpu: sys.cpu
    readonly property var cores: cpu.perCore

    spacing: 8

    PanelHeader {
        objectName: "cpuHeader"
        width: parent.width
        title: "CPU"
        subtitle: section.sys.cpuBrand
        trailing: fmt.percent(section.cpu.total, 0)
        accent: fmt.loadColor(section.cpu.total)
        roastTopic: RoastTopic.cpu
    }

    ExpandableChart {
        objectName: "cpuChart"
        width: parent.width
        values: section.sys.cpuHistory.ordered
        color: fmt.loadColor(section.cpu.total)
        maxValue: 1
        collapsedHeight: 44
        boxed: true
        format: function (v) { return fmt.percent(v, 0) }
    }

    InfoPair {
        width: parent.width
        leftLabel: texts.userLabel
        leftValue: fmt.percent(section.cpu.user, 1)
        rightLabel: texts.systemLabel
        rightValue: fmt.percent(section.cpu.system, 1)
    }

    SectionLabel {
        objectName: "coresLabel"
        width: parent.width
        visible: section.cores.length > 0
        label: fmt.fill(texts.coresCount, [String(section.cores.length)])
    }

    BarsView {
        objectName: "coreBars"
        width: parent.width
        height: 30
        visible: section.cores.length > 0
        values: section.cores
        spacing: 2
    }
}
