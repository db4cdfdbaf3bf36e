import QtQuick
import Sulkbox 1.0

// A history chart that grows to 108 on a click, with grid lines and a
// caption giving the peak, and springs back on the next.
Column {
    id: chart

    property var values: []
    property color color: Theme.accent
    property real maxValue: 0
    property real collapsedHeight: 26
    property bool boxed: false
    property var format: function (v) { return fmt.fixed(v, 1) }
    property bool expanded: false

    // 0 collapsed … 1 expanded; the height, the grid and the caption all
    // follow it, so they move together.
    property real progress: expanded ? 1 : 0
    Behavior on progress {
        enabled: monitor.panelVisible
        // Response 0.35 s, damping fraction 0.85.
        SpringAnimation { spring: 5.16; damping: 0.49; epsilon: 0.002 }
    }

    Item {
        id: plot
        objectName: "plot"
        width: parent.width
        height: chart.collapsedHeight + (108 - chart.collapsedHeight) * chart.progress

        Rectangle {
            anchors.fill: parent
            visible: chart.boxed
            radius: 6
            color: Theme.cardFill
        }

        Repeater {
            model: 3
            Rectangle {
                y: Math.round(plot.height * (index + 1) / 4)
                width: plot.width
                height: 1
                color: Theme.alpha(Theme.primary, 0.07)
                opacity: Math.max(0, Math.min(1, chart.progress))
                visible: opacity > 0
            }
        }

        Sparkline {
            id: line
            anchors.fill: parent
            values: chart.values
            color: chart.color
            fill: true
            maxValue: chart.maxValue
            lineWidth: 1.5
        }

        MouseArea {
            anchors.fill: parent
            onClicked: chart.expanded = !chart.expanded
        }
    }

    Item {
        id: caption
        width: parent.width
        height: Math.max(0, (captionRow.implicitHeight + 3) * chart.progress)
        clip: true
        visible: height > 0

        Item {
            id: captionRow
            // Too narrow for both on one line: the peak goes under, so that
            // neither is cut.
            readonly property bool stacked: lastText.implicitWidth + peakText.implicitWidth + 6 > width
            y: 3
            width: parent.width
            implicitHeight: stacked ? lastText.implicitHeight + peakText.implicitHeight : peakText.implicitHeight
            opacity: Math.max(0, Math.min(1, chart.progress))

            Text {
                id: lastText
                width: Math.min(implicitWidth, parent.width)
                text: texts.last60s
                color: Theme.tertiary
                font.pixelSize: 9
                elide: Text.ElideRight
                maximumLineCount: 1
            }
            Text {
                id: peakText
                objectName: "peak"
                anchors.right: parent.right
                y: captionRow.stacked ? lastText.implicitHeight : 0
                width: Math.min(implicitWidth, parent.width)
                horizontalAlignment: Text.AlignRight
                text: fmt.fill(texts.peakFmt, [chart.format(line.peak)])
                color: Theme.tertiary
                font.pixelSize: 9
                elide: Text.ElideRight
                maximumLineCount: 1
            }
        }
    }
}
