import QtQuick

// A thin overlay scroll bar for a Flickable: it shows while the content
// moves or the pointer is on it, fades shortly after, and can be dragged.
Item {
    id: bar

    property Flickable flickable
    readonly property real range: flickable ? Math.max(0, flickable.contentHeight - flickable.height) : 0
    readonly property bool engaged: (flickable && flickable.moving) || area.containsMouse || area.pressed
    // Stays visible a moment after the last movement.
    property bool lingering: false

    width: 10
    visible: range > 0
    opacity: engaged || lingering ? 1 : 0
    Behavior on opacity {
        enabled: monitor.panelVisible
        NumberAnimation { duration: 200; easing.type: Easing.InOutQuad }
    }

    onEngagedChanged: {
        if (!engaged && monitor.panelVisible) {
            lingering = true
            linger.restart()
        }
    }
    // Moving by wheel does not set `moving`; a change of position counts.
    Connections {
        target: bar.flickable
        function onContentYChanged() {
            if (!monitor.panelVisible)
                return
            bar.lingering = true
            linger.restart()
        }
    }
    Connections {
        target: monitor
        function onPanelVisibleChanged() {
            linger.stop()
            bar.lingering = false
        }
    }
    Timer {
        id: linger
        interval: 900
        onTriggered: bar.lingering = false
    }

    Rectangle {
        id: thumb
        anchors.right: parent.right
        anchors.rightMargin: 2
        width: area.containsMouse || area.pressed ? 7 : 5
        height: bar.flickable ? Math.max(24, bar.height * bar.flickable.height / Math.max(1, bar.flickable.contentHeight)) : 0
        y: bar.range > 0 ? (bar.flickable.contentY / bar.range) * (bar.height - height) : 0
        radius: width / 2
        color: Theme.alpha(Theme.primary, area.pressed ? 0.55 : 0.38)
    }

    MouseArea {
        id: area

        property real grab: 0

        anchors.fill: parent
        hoverEnabled: true
        function scrollTo(mouseY) {
            const track = bar.height - thumb.height
            if (track <= 0)
                return
            const y = Math.max(0, Math.min(track, mouseY - grab))
            bar.flickable.contentY = y / track * bar.range
        }
        onPressed: function (mouse) {
            // On the thumb it is dragged where it was held; elsewhere its
            // middle jumps to the pointer.
            grab = mouse.y >= thumb.y && mouse.y <= thumb.y + thumb.height ? mouse.y - thumb.y : thumb.height / 2
            scrollTo(mouse.y)
        }
        onPositionChanged: function (mouse) {
            if (pressed)
                scrollTo(mouse.y)
        }
    }
}
