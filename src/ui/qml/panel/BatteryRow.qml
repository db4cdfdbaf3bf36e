import QtQuick

// The battery's charge, what it is doing, a charge bar, and its health once
// the battery reports cycles.
Column {
    id: root

    property var battery

    readonly property real charge: battery ? battery.charge : 0
    readonly property bool onPower: battery ? (battery.isCharging || battery.isPluggedIn) : false

    function statusText() {
        const b = battery
        if (!b)
            return ""
        if (b.isCharging)
            return b.timeToFull >= 1 ? fmt.fill(texts.chargingToFull, [fmt.minutes(b.timeToFull)]) : texts.charging
        if (!b.isPluggedIn)
            return b.timeToEmpty >= 1 ? fmt.fill(texts.timeLeft, [fmt.minutes(b.timeToEmpty)]) : texts.onBattery
        return texts.pluggedIn
    }

    spacing: 6

    Item {
        width: parent.width
        implicitHeight: Math.max(percentText.implicitHeight, status.implicitHeight)
        Text {
            id: percentText
            objectName: "charge"
            anchors.verticalCenter: parent.verticalCenter
            text: fmt.percent(root.charge, 0)
            color: fmt.loadColor(1 - root.charge)
            font.pixelSize: 18
            font.weight: Font.DemiBold
        }
        Text {
            id: status
            objectName: "status"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width - percentText.width - 8)
            horizontalAlignment: Text.AlignRight
            text: root.statusText()
            color: Theme.secondary
            font.pixelSize: 11
            elide: Text.ElideRight
            maximumLineCount: 1
        }
    }

    UsageBar {
        objectName: "chargeBar"
        width: parent.width
        barHeight: 7
        fraction: root.charge
        color: root.onPower ? Theme.green : fmt.loadColor(1 - root.charge)
    }

    InfoPair {
        width: parent.width
        visible: root.battery ? root.battery.cycleCount >= 1 : false
        leftLabel: texts.health
        leftValue: fmt.percent(root.battery ? root.battery.health : 0, 0)
        rightLabel: texts.cycles
        rightValue: root.battery ? String(root.battery.cycleCount) : ""
    }
}
