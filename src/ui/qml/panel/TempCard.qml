import QtQuick

// A temperature in its load colour (100 °C is full load).
Card {
    id: card

    property string title
    property real temp

    Column {
        width: card.innerWidth
        spacing: 2
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: card.title
            color: Theme.secondary
            font.pixelSize: 10
            elide: Text.ElideRight
            maximumLineCount: 1
        }
        Text {
            objectName: "value"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: fmt.temp(card.temp, appSettings.useFahrenheit)
            color: fmt.loadColor(card.temp / 100)
            font.pixelSize: 17
            font.weight: Font.DemiBold
            elide: Text.ElideRight
            maximumLineCount: 1
        }
    }
}
