import QtQuick

// A power draw in watts.
Card {
    id: card

    property string title
    property real watts

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
            text: fmt.watts(card.watts)
            color: Theme.primary
            font.pixelSize: 15
            font.weight: Font.DemiBold
            elide: Text.ElideRight
            maximumLineCount: 1
        }
    }
}
