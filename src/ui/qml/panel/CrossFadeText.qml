import QtQuick

// One line of text whose changes cross-fade: the old text fades out while
// the new one fades in over it.
Item {
    id: root

    property string text
    property color color
    property int pixelSize: 10
    property int weight: Font.Normal
    property bool animate: true

    implicitHeight: first.implicitHeight
    implicitWidth: Math.max(first.implicitWidth, second.implicitWidth)

    // Which of the two texts holds the current value.
    property bool firstShown: true

    onTextChanged: {
        if (!animate) {
            first.text = text
            firstShown = true
            return
        }
        if (firstShown)
            second.text = text
        else
            first.text = text
        firstShown = !firstShown
    }
    Component.onCompleted: first.text = text

    Text {
        id: first
        width: parent.width
        color: root.color
        font.pixelSize: root.pixelSize
        font.weight: root.weight
        elide: Text.ElideRight
        maximumLineCount: 1
        opacity: root.firstShown ? 1 : 0
        visible: opacity > 0
        Behavior on opacity {
            enabled: root.animate
            NumberAnimation { duration: 200; easing.type: Easing.InOutQuad }
        }
    }
    Text {
        id: second
        width: parent.width
        color: root.color
        font: first.font
        elide: Text.ElideRight
        maximumLineCount: 1
        opacity: root.firstShown ? 0 : 1
        visible: opacity > 0
        Behavior on opacity {
            enabled: root.animate
            NumberAnimation { duration: 200; easing.type: Easing.InOutQuad }
        }
    }
}
