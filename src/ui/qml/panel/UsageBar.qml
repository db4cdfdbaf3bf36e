import QtQuick

// A capsule track with a capsule fill from the left. The fraction is
// clamped: above 1 fills the track, zero, negative or not a number leaves
// only the track.
Item {
    id: bar

    property real fraction
    property color color: Theme.accent
    property real barHeight: 5

    readonly property real shown: isFinite(fraction) && fraction > 0 ? Math.min(fraction, 1) : 0

    implicitHeight: barHeight

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: Theme.trackFill
    }
    Rectangle {
        objectName: "fill"
        width: parent.width * bar.shown
        height: parent.height
        visible: width > 0
        radius: height / 2
        color: bar.color
    }
}
