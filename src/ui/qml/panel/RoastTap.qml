import QtQuick
import Sulkbox 1.0

// Makes the whole rectangle of its parent clickable, with the pointing hand
// while the pointer is over it.
MouseArea {
    id: tap

    signal tapped()

    anchors.fill: parent
    hoverEnabled: true
    acceptedButtons: Qt.LeftButton
    onContainsMouseChanged: hand.hovering = containsMouse
    onClicked: tapped()

    HandCursor {
        id: hand
        objectName: "handCursor"
    }

    // The panel closing under the pointer gives the cursor back at once.
    Connections {
        target: monitor
        function onPanelVisibleChanged() {
            if (!monitor.panelVisible)
                hand.hovering = false
        }
    }
}
