import QtQuick
import Sulkbox 1.0

// A transfer rate on a card: icon and title, the rate, and its history.
Card {
    id: cell

    property string title
    property real rate
    property var history: []
    property color color: Theme.accent
    property string icon

    Column {
        width: cell.innerWidth
        spacing: 4

        Row {
            spacing: 3
            width: parent.width
            Icon {
                name: cell.icon
                color: cell.color
                width: 9
                height: 9
                anchors.verticalCenter: parent.verticalCenter
            }
            Text {
                width: Math.min(implicitWidth, parent.width - 12)
                text: cell.title
                color: Theme.secondary
                font.pixelSize: 10
                elide: Text.ElideRight
                maximumLineCount: 1
            }
        }
        Text {
            objectName: "rate"
            width: parent.width
            text: fmt.rate(cell.rate, 1)
            color: Theme.primary
            font.pixelSize: 12
            font.weight: Font.DemiBold
            elide: Text.ElideRight
            maximumLineCount: 1
        }
        ExpandableChart {
            objectName: "rateChart"
            width: parent.width
            values: cell.history
            color: cell.color
            collapsedHeight: 26
            boxed: false
            format: function (v) { return fmt.rate(v, 1) }
        }
    }
}
