import QtQuick
import Sulkbox 1.0

Column {
    id: section

    property MemoryCleanup cleanup
    readonly property SystemMonitor sys: monitor
    readonly property var mem: sys.memory
    readonly property bool cleaning: cleanup ? cleanup.cleaning : false
    readonly property string freedText: cleanup ? cleanup.freedText : ""

    spacing: 8

    PanelHeader {
        objectName: "memoryHeader"
        width: parent.width
        title: texts.memory
        subtitle: fmt.fill(texts.installedFmt, [fmt.bytes(section.mem.total, 0)])
        trailing: fmt.percent(section.mem.pressure, 0)
        accent: fmt.loadColor(section.mem.pressure)
        roastTopic: RoastTopic.memory
    }

    UsageBar {
        width: parent.width
        barHeight: 7
        fraction: section.mem.pressure
        color: fmt.loadColor(section.mem.pressure)
    }

    Item {
        width: parent.width
        implicitHeight: freeUp.height

        // The note keeps its last text while it fades out.
        Connections {
            target: section.cleanup
            function onFreedTextChanged() {
                if (section.freedText !== "")
                    freedNote.text = section.freedText
            }
        }

        Text {
            id: freedNote
            objectName: "freedNote"
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width - freeUp.width - 6)
            Component.onCompleted: text = section.freedText
            color: Theme.green
            font.pixelSize: 10
            font.weight: Font.Medium
            elide: Text.ElideRight
            maximumLineCount: 1
            opacity: section.freedText !== "" ? 1 : 0
            visible: opacity > 0
            Behavior on opacity {
                enabled: section.sys.panelVisible
                NumberAnimation { duration: 250; easing.type: Easing.InOutQuad }
            }
        }

        Rectangle {
            id: freeUp
            objectName: "freeUpButton"
            anchors.right: parent.right
            width: buttonRow.implicitWidth + 16
            height: buttonRow.implicitHeight + 6
            radius: height / 2
            color: freeUpArea.containsMouse && !section.cleaning ? Theme.alpha(Theme.primary, 0.12) : Theme.buttonFill
            opacity: section.cleaning ? 0.6 : (freeUpArea.pressed ? 0.75 : 1)

            Accessible.role: Accessible.Button
            Accessible.name: buttonText.text

            Row {
                id: buttonRow
                anchors.centerIn: parent
                spacing: 4
                Icon {
                    name: "wind"
                    color: Theme.secondary
                    width: 10
                    height: 10
                    anchors.verticalCenter: parent.verticalCenter
                }
                Text {
                    id: buttonText
                    objectName: "freeUpText"
                    text: section.cleaning ? texts.cleaning : texts.freeUp
                    color: Theme.secondary
                    font.pixelSize: 10
                    font.weight: Font.Medium
                }
            }

            MouseArea {
                id: freeUpArea
                objectName: "freeUpArea"
                anchors.fill: parent
                hoverEnabled: true
                enabled: !section.cleaning
                onClicked: if (section.cleanup) section.cleanup.clean()
            }
        }
    }

    Column {
        width: parent.width
        spacing: 5

        InfoPair {
            width: parent.width
            leftLabel: texts.used
            leftIcon: "circle-fill"
            leftValue: fmt.bytes(section.mem.used, 1)
            rightLabel: texts.wired
            rightIcon: "lock"
            rightValue: fmt.bytes(section.mem.wired, 1)
        }
        InfoPair {
            width: parent.width
            leftLabel: texts.compr
            leftIcon: "compress"
            leftValue: fmt.bytes(section.mem.compressed, 1)
            rightLabel: texts.cached
            rightIcon: "tray"
            rightValue: fmt.bytes(section.mem.cached, 1)
        }
        InfoPair {
            objectName: "freeSwapRow"
            width: parent.width
            leftLabel: texts.free
            leftIcon: "circle"
            leftValue: fmt.bytes(section.mem.free, 1)
            leftColor: Theme.secondary
            // Without swap the right half stays empty; Free keeps its place.
            rightLabel: section.mem.swapTotal > 0 ? texts.swap : ""
            rightIcon: "drive"
            rightValue: fmt.bytes(section.mem.swapUsed, 1)
        }
    }
}
