// The result of an update check. Context: texts, fmt (shared); updateCheck
// (UpdateWindow) and scheme (ColorScheme) of this window.
import QtQuick
import QtQuick.Controls.Fusion
import QtQuick.Layouts
import QtQuick.Window

ApplicationWindow {
    id: root
    objectName: "updateWindow"
    title: texts.updateTitle
    flags: Qt.Dialog
    // Wide enough for the buttons in every language.
    width: Math.max(440, buttons.implicitWidth + (icon.visible ? icon.width + content.spacing : 0) + 40)
    height: content.implicitHeight + 40
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    visible: false
    color: scheme.colors.window

    palette.window: scheme.colors.window
    palette.windowText: scheme.colors.windowText
    palette.base: scheme.colors.base
    palette.alternateBase: scheme.colors.alternateBase
    palette.text: scheme.colors.text
    palette.button: scheme.colors.button
    palette.buttonText: scheme.colors.buttonText
    palette.brightText: scheme.colors.brightText
    palette.light: scheme.colors.light
    palette.midlight: scheme.colors.midlight
    palette.mid: scheme.colors.mid
    palette.dark: scheme.colors.dark
    palette.shadow: scheme.colors.shadow
    palette.highlight: scheme.colors.highlight
    palette.highlightedText: scheme.colors.highlightedText
    palette.link: scheme.colors.link
    palette.placeholderText: scheme.colors.placeholderText
    palette.disabled.text: scheme.colors.disabledText
    palette.disabled.buttonText: scheme.colors.disabledButtonText
    palette.disabled.windowText: scheme.colors.disabledWindowText

    readonly property real basePx: Qt.application.font.pixelSize > 0
                                   ? Qt.application.font.pixelSize
                                   : Qt.application.font.pointSize * 4 / 3
    readonly property bool checking: updateCheck.state === "checking"
    readonly property bool available: updateCheck.state === "available"
    readonly property bool failed: updateCheck.state === "failed"

    function failureText() {
        switch (updateCheck.failure) {
        case "notConfigured": return texts.updatesFromDistro
        case "timedOut": return texts.updateErrorTimeout
        case "serverError": return fmt.fill(texts.updateErrorServerFmt, [updateCheck.errorCode])
        case "badFeed": return texts.updateErrorBadFeed
        default: return texts.updateErrorOffline
        }
    }

    Shortcut {
        sequences: [StandardKey.Close, StandardKey.Cancel]
        onActivated: updateCheck.close()
    }

    RowLayout {
        id: content
        x: 20
        y: 20
        width: root.width - 40
        spacing: 16

        Item {
            id: icon
            visible: updateCheck.iconSource !== ""
            implicitWidth: 64
            implicitHeight: 64
            Layout.alignment: Qt.AlignTop
            Image {
                anchors.fill: parent
                source: updateCheck.iconSource
                sourceSize: Qt.size(128, 128)
                fillMode: Image.PreserveAspectFit
                // Loaded once per window, outside the shared image cache.
                cache: false
                smooth: true
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignTop
            spacing: 8

            Label {
                objectName: "updateHeading"
                Layout.fillWidth: true
                wrapMode: Text.Wrap
                font.pixelSize: Math.round(root.basePx * 1.15)
                font.weight: Font.DemiBold
                text: root.checking ? texts.checkingForUpdates
                    : root.available ? texts.updateAvailable
                    : root.failed ? texts.updateFailed
                    : texts.upToDate
            }

            ProgressBar {
                Layout.fillWidth: true
                visible: root.checking
                indeterminate: true
            }

            Label {
                objectName: "updateMessage"
                Layout.fillWidth: true
                visible: !root.checking
                wrapMode: Text.Wrap
                text: root.available
                      // Two lines: a space between sentences is wrong in Chinese and Japanese.
                      ? fmt.fill(texts.updateAvailableFmt, [updateCheck.newVersion]) + "\n"
                        + fmt.fill(texts.youHaveFmt, [updateCheck.currentVersion])
                      : root.failed ? root.failureText()
                      : fmt.fill(texts.upToDateFmt, [updateCheck.currentVersion])
            }

            Rectangle {
                objectName: "updateNotes"
                visible: root.available && updateCheck.notes !== ""
                Layout.fillWidth: true
                Layout.preferredHeight: 150
                radius: 6
                color: scheme.colors.base
                border.color: scheme.colors.separator
                ScrollView {
                    anchors.fill: parent
                    anchors.margins: 1
                    TextArea {
                        readOnly: true
                        selectByMouse: true
                        wrapMode: TextEdit.Wrap
                        textFormat: TextEdit.PlainText
                        text: updateCheck.notes
                        background: null
                    }
                }
            }

            RowLayout {
                id: buttons
                Layout.fillWidth: true
                Layout.topMargin: 6
                visible: !root.checking
                spacing: 8

                Button {
                    objectName: "releaseNotesButton"
                    visible: root.available && updateCheck.hasReleaseNotes
                    text: texts.releaseNotes
                    onClicked: updateCheck.openReleaseNotes()
                }
                Item { Layout.fillWidth: true }
                Button {
                    objectName: "dismissButton"
                    text: root.available ? texts.notNow : texts.ok
                    onClicked: updateCheck.close()
                }
                Button {
                    objectName: "downloadButton"
                    visible: root.available && updateCheck.hasDownloadPage
                    highlighted: true
                    text: texts.openDownloadPage
                    onClicked: updateCheck.openDownloadPage()
                }
            }
        }
    }
}
