import QtQuick
import Sulkbox 1.0

Column {
    id: section

    readonly property SystemMonitor sys: monitor
    readonly property var sensors: sys.sensors
    readonly property var battery: sys.battery
    readonly property var gpu: sys.gpu
    readonly property var power: sys.power

    readonly property bool showCPUCard: sensors.cpuTemp > 0
    readonly property bool showGPUCard: gpu.hasUsage || sensors.gpuTemp > 0
    readonly property int cardCount: (showCPUCard ? 1 : 0) + (showGPUCard ? 1 : 0)
    readonly property real cardWidth: cardCount > 0 ? (width - 10 * (cardCount - 1)) / cardCount : 0
    // Cards side by side share one height.
    readonly property real cardHeight: Math.max(showCPUCard ? tempCard.implicitHeight : 0,
                                                showGPUCard ? gpuCard.implicitHeight : 0)
    readonly property real powerWidth: (width - 20) / 3
    // Nothing at all readable: no temperature, no fan, no power, no GPU.
    readonly property bool nothingReadable: sensors.components.length === 0 && !showCPUCard
        && sensors.fans.length === 0 && !power.ok && !showGPUCard

    spacing: 8

    PanelHeader {
        objectName: "sensorsHeader"
        width: parent.width
        title: texts.sensors
        roastTopic: RoastTopic.sensors
    }

    BatteryRow {
        objectName: "battery"
        width: parent.width
        visible: section.battery.present
        battery: section.battery
    }

    Row {
        objectName: "tempCards"
        spacing: 10
        visible: section.cardCount > 0
        TempCard {
            id: tempCard
            width: section.cardWidth
            height: section.cardHeight
            visible: section.showCPUCard
            title: "CPU"
            temp: section.sensors.cpuTemp
        }
        GPUCard {
            id: gpuCard
            objectName: "gpuCard"
            width: section.cardWidth
            height: section.cardHeight
            visible: section.showGPUCard
            usage: section.gpu.usage
            hasUsage: section.gpu.hasUsage
            temp: section.sensors.gpuTemp
        }
    }

    SectionLabel {
        width: parent.width
        visible: section.power.ok
        label: texts.power
    }
    Row {
        objectName: "powerCards"
        spacing: 10
        visible: section.power.ok
        PowerCard { width: section.powerWidth; title: "CPU"; watts: section.power.cpu }
        PowerCard { width: section.powerWidth; title: "GPU"; watts: section.power.gpu }
        PowerCard { width: section.powerWidth; title: texts.totalLabel; watts: section.power.total }
    }

    SectionLabel {
        width: parent.width
        visible: section.sensors.fans.length > 0
        label: texts.fans
    }
    Repeater {
        model: section.sensors.fans.length
        InfoRow {
            objectName: "fan"
            readonly property var fan: section.sensors.fans[index]
            width: section.width
            icon: "fan"
            label: fmt.fill(texts.fanFmt, [String(fan ? fan.index + 1 : index + 1)])
            value: fmt.fill(texts.rpmFmt, [fmt.fixed(fan ? Math.trunc(fan.current) : 0, 0)])
        }
    }

    SectionLabel {
        width: parent.width
        visible: section.sensors.components.length > 0
        label: texts.temperatures
    }
    Repeater {
        model: section.sensors.components.length
        InfoRow {
            objectName: "component"
            readonly property var component: section.sensors.components[index]
            readonly property real celsius: component ? component.celsius : 0
            width: section.width
            icon: "thermometer"
            label: component ? (loc.concrete, loc.text(component.key)) : ""
            value: fmt.temp(celsius, appSettings.useFahrenheit)
            valueColor: fmt.loadColor(celsius / 100)
        }
    }

    Text {
        objectName: "noSensors"
        width: parent.width
        visible: section.nothingReadable
        text: texts.noSensors
        color: Theme.secondary
        font.pixelSize: 10
        wrapMode: Text.Wrap
    }
}
