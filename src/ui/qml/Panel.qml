// The panel until its real content arrives: the mood banner's lines.
import QtQuick

Item {
    id: root
    width: 300
    implicitHeight: column.implicitHeight + 32

    readonly property var shown: monitor.reaction

    Rectangle {
        anchors.fill: parent
        color: palette.window
        border.color: Qt.rgba(0, 0, 0, 0.15)
    }

    Column {
        id: column
        x: 16
        y: 16
        width: root.width - 32
        spacing: 4

        Text {
            visible: appSettings.petName.length > 0
            text: appSettings.petName
            color: palette.placeholderText
            font.pixelSize: 12
        }
        Text {
            text: root.shown.emoji
            font.pixelSize: 40
        }
        Text {
            width: parent.width
            wrapMode: Text.Wrap
            text: { loc.language; return loc.text(root.shown.phraseKey) }
            color: palette.windowText
            font.pixelSize: 17
            font.weight: Font.DemiBold
        }
        Text {
            width: parent.width
            wrapMode: Text.Wrap
            text: { loc.language; return loc.text(root.shown.reasonKey, root.shown.hasReasonArg ? [root.shown.reasonArg] : []) }
            color: palette.placeholderText
            font.pixelSize: 13
        }
    }
}
