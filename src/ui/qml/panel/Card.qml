import QtQuick

// The shared look of the metric cards: content padded 8 on a softly
// tinted rounded rectangle.
Rectangle {
    id: card

    default property alias content: inner.data
    readonly property real innerWidth: width - 16

    implicitHeight: inner.childrenRect.height + 16
    radius: 6
    color: Theme.cardFill

    Item {
        id: inner
        x: 8
        // Centred when a row of cards makes this one taller than it needs.
        y: Math.max(8, (card.height - height) / 2)
        width: card.innerWidth
        height: childrenRect.height
    }
}
