import QtQuick
import Sulkbox 1.0
import "panel"

// The drop-down panel: the mood banner, the scrolling column of modules and
// the footer. The modules exist only while the panel is open, so a closed
// panel costs nothing per tick.
Item {
    id: root

    readonly property SystemMonitor sys: monitor
    readonly property alias banner: banner
    readonly property alias scroller: scroller

    width: 300
    implicitWidth: 300
    implicitHeight: layout.implicitHeight
    focus: true

    Rectangle {
        anchors.fill: parent
        color: Theme.window
    }

    // Outlives the module column: a clean-up that finishes after the panel
    // closed still updates the note and the reaction.
    MemoryCleanup {
        id: memoryCleanup
        monitor: root.sys
    }

    Column {
        id: layout
        width: parent.width

        Item {
            width: parent.width
            implicitHeight: banner.implicitHeight + 12 + 10
            MoodBanner {
                id: banner
                objectName: "banner"
                x: 14
                y: 12
                width: parent.width - 28
            }
        }

        Rectangle {
            width: parent.width
            height: 1
            color: Theme.separator
        }

        // The module column scrolls under a thin bar of its own.
        Item {
            width: parent.width
            height: 500

            Flickable {
                id: scroller
                objectName: "scroller"
                width: parent.width
                height: 500
                clip: true
                contentWidth: width
                contentHeight: modules.item ? modules.item.height : 0
                boundsBehavior: Flickable.StopAtBounds
                onContentHeightChanged: contentY = Math.max(0, Math.min(contentY, contentHeight - height))

                Loader {
                    id: modules
                    objectName: "modules"
                    width: scroller.width
                    active: root.sys.panelVisible
                    onActiveChanged: if (active) scroller.contentY = 0
                    sourceComponent: ModuleColumn {
                        cleanup: memoryCleanup
                    }
                }
            }

            ScrollIndicator {
                objectName: "scrollIndicator"
                anchors.right: parent.right
                height: parent.height
                flickable: scroller
            }
        }

        Rectangle {
            width: parent.width
            height: 1
            color: Theme.separator
        }

        Item {
            width: parent.width
            implicitHeight: footer.implicitHeight + 16
            FooterButtons {
                id: footer
                objectName: "footer"
                x: 14
                y: 8
                width: parent.width - 28
            }
        }
    }
}
