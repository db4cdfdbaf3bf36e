import QtQuick
import Sulkbox 1.0

// The machine's face, its name, and what it feels and why. A click anywhere
// on it pokes; a roast from a module header takes the text for 5 s.
Item {
    id: banner

    // Animations run only while the panel is open.
    readonly property bool live: sys.panelVisible
    readonly property SystemMonitor sys: monitor
    readonly property alias model: bannerModel

    implicitHeight: Math.max(face.height, textColumn.height) + 4

    function poke() {
        bannerModel.poke()
    }

    BannerModel {
        id: bannerModel
        monitor: banner.sys
        onBounce: {
            if (!banner.live)
                return
            face.poked = true
            springBack.restart()
        }
        // Keep the last roast and quip on screen while they fade out.
        onContentChanged: if (roastActive) roastText.text = roastLine
        onQuipChanged: if (hasQuip) quipText.text = quip
        Component.onCompleted: {
            if (roastActive)
                roastText.text = roastLine
            if (hasQuip)
                quipText.text = quip
        }
    }

    Timer {
        id: springBack
        interval: 180
        onTriggered: face.poked = false
    }

    Text {
        id: face
        objectName: "face"

        property bool poked: false

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        text: bannerModel.face
        font.family: Theme.emojiFamily
        font.pixelSize: 34
        transformOrigin: Item.Center

        states: State {
            name: "poked"
            when: face.poked
            PropertyChanges { target: face; scale: 1.28; rotation: -8 }
        }
        transitions: [
            Transition {
                to: "poked"
                enabled: banner.live
                NumberAnimation { properties: "scale,rotation"; duration: 120; easing.type: Easing.OutQuad }
            },
            Transition {
                from: "poked"
                enabled: banner.live
                // A quick spring (0.35 s, damped to 0.45) that overshoots a
                // little on the way back.
                SpringAnimation { properties: "scale,rotation"; spring: 5.16; damping: 0.26; epsilon: 0.002 }
            }
        ]
    }

    Column {
        id: textColumn
        anchors.left: face.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        Text {
            id: nameLine
            objectName: "nameLine"
            width: parent.width
            text: bannerModel.nameLine
            color: Theme.tertiary
            font.pixelSize: 10
            font.weight: Font.DemiBold
            elide: Text.ElideRight
            maximumLineCount: 1
        }

        // The roast line, or the phrase with the quip or the reason, over
        // each other while one fades into the other.
        Item {
            id: lines
            width: parent.width
            // Summed by hand: a Column's own height only settles after layout,
            // and the first open must not animate from zero.
            height: bannerModel.roastActive ? roastText.implicitHeight
                                            : phrase.implicitHeight + 1 + secondLine.height
            Behavior on height {
                enabled: banner.live
                NumberAnimation { duration: 200; easing.type: Easing.InOutQuad }
            }

            Text {
                id: roastText
                objectName: "roastLine"
                width: parent.width
                color: bannerModel.tint
                font.pixelSize: 15
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                maximumLineCount: 3
                elide: Text.ElideRight
                opacity: bannerModel.roastActive ? 1 : 0
                visible: opacity > 0
                Behavior on opacity {
                    enabled: banner.live
                    NumberAnimation { duration: 200; easing.type: Easing.InOutQuad }
                }
            }

            Column {
                id: phraseBlock
                width: parent.width
                spacing: 1
                opacity: bannerModel.roastActive ? 0 : 1
                visible: opacity > 0
                Behavior on opacity {
                    enabled: banner.live
                    NumberAnimation { duration: 200; easing.type: Easing.InOutQuad }
                }

                CrossFadeText {
                    id: phrase
                    objectName: "phrase"
                    width: parent.width
                    text: bannerModel.phrase
                    color: bannerModel.tint
                    pixelSize: 16
                    weight: Font.DemiBold
                    animate: banner.live
                }

                Item {
                    id: secondLine
                    width: parent.width
                    height: bannerModel.hasQuip ? quipText.implicitHeight : reason.implicitHeight
                    Behavior on height {
                        enabled: banner.live
                        NumberAnimation { duration: 200; easing.type: Easing.InOutQuad }
                    }

                    Text {
                        id: quipText
                        objectName: "quip"
                        width: parent.width
                        color: bannerModel.tint
                        font.pixelSize: 11
                        font.weight: Font.Medium
                        wrapMode: Text.Wrap
                        maximumLineCount: 3
                        elide: Text.ElideRight
                        opacity: bannerModel.hasQuip ? 1 : 0
                        visible: opacity > 0
                        Behavior on opacity {
                            enabled: banner.live
                            NumberAnimation { duration: 200; easing.type: Easing.InOutQuad }
                        }
                    }

                    CrossFadeText {
                        id: reason
                        objectName: "reason"
                        width: parent.width
                        text: bannerModel.reason
                        color: Theme.secondary
                        pixelSize: 10
                        animate: banner.live
                        opacity: bannerModel.hasQuip ? 0 : 1
                        visible: opacity > 0
                        Behavior on opacity {
                            enabled: banner.live
                            NumberAnimation { duration: 200; easing.type: Easing.InOutQuad }
                        }
                    }
                }
            }
        }
    }

    // The whole banner pokes, the space beside the text included.
    MouseArea {
        id: pokeArea
        objectName: "pokeArea"
        anchors.fill: parent
        onClicked: bannerModel.poke()
    }
}
