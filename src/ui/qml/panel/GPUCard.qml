import QtQuick

// The GPU's load, with its temperature under it; without a load reading,
// the temperature takes the big line.
Card {
    id: card

    property real usage
    property bool hasUsage
    property real temp

    Column {
        width: card.innerWidth
        spacing: 2
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: "GPU"
            color: Theme.secondary
            font.pixelSize: 10
        }
        Text {
            objectName: "value"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: card.hasUsage ? fmt.percent(card.usage, 0) : fmt.temp(card.temp, appSettings.useFahrenheit)
            color: fmt.loadColor(card.hasUsage ? card.usage : card.temp / 100)
            font.pixelSize: 17
            font.weight: Font.DemiBold
            elide: Text.ElideRight
            maximumLineCount: 1
        }
        Text {
            objectName: "temp"
            width: parent.width
            visible: card.hasUsage && card.temp > 0
            horizontalAlignment: Text.AlignHCenter
            text: fmt.temp(card.temp, appSettings.useFahrenheit)
            color: Theme.tertiary
            font.pixelSize: 9
            elide: Text.ElideRight
            maximumLineCount: 1
        }
    }
}
