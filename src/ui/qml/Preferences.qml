// The preferences window: four titled groups of rows, each control on the
// trailing side, every change stored at once. Context: appSettings, loc,
// texts, fmt, monitor (shared); prefs (PreferencesWindow) and scheme
// (ColorScheme) of this window.
import QtQuick
import QtQuick.Controls.Fusion
import QtQuick.Layouts
import QtQuick.Window

ApplicationWindow {
    id: root
    objectName: "preferencesWindow"
    title: texts.prefsTitle
    width: 380
    height: 540
    minimumWidth: 380
    maximumWidth: 380
    minimumHeight: 540
    maximumHeight: 540
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
    palette.toolTipBase: scheme.colors.toolTipBase
    palette.toolTipText: scheme.colors.toolTipText
    palette.disabled.text: scheme.colors.disabledText
    palette.disabled.buttonText: scheme.colors.disabledButtonText
    palette.disabled.windowText: scheme.colors.disabledWindowText

    // Text sizes follow the desktop's UI font.
    readonly property real basePx: Qt.application.font.pixelSize > 0
                                   ? Qt.application.font.pixelSize
                                   : Qt.application.font.pointSize * 4 / 3
    readonly property int captionPx: Math.max(9, Math.round(basePx * 0.88))
    readonly property int smallCaptionPx: Math.max(9, Math.round(basePx * 0.8))
    readonly property int controlWidth: 156

    // Scrolls so that `item` (anywhere inside the form) is in view.
    function reveal(item) {
        if (!item)
            return
        const p = item.mapToItem(form, 0, 0)
        const top = p.y - 8
        const bottom = p.y + item.height + 8
        if (top < flick.contentY)
            flick.contentY = Math.max(0, top)
        else if (bottom > flick.contentY + flick.height)
            flick.contentY = Math.min(flick.contentHeight - flick.height, bottom - flick.height)
    }

    function scrollToEnd() {
        flick.contentY = Math.max(0, flick.contentHeight - flick.height)
    }

    function scrollToTop() {
        flick.contentY = 0
    }

    // Tabbing through the controls keeps the focused one in view.
    onActiveFocusItemChanged: {
        let item = activeFocusItem
        while (item && item !== form)
            item = item.parent
        if (item === form)
            reveal(activeFocusItem)
    }

    Shortcut {
        sequences: [StandardKey.Close, StandardKey.Cancel]
        onActivated: root.close()
    }

    component SectionHeader: Label {
        Layout.fillWidth: true
        Layout.leftMargin: 6
        Layout.topMargin: 14
        Layout.bottomMargin: 6
        font.pixelSize: root.captionPx
        font.weight: Font.DemiBold
        color: scheme.colors.secondaryText
        elide: Text.ElideRight
    }

    // A titled group's rounded background; rows go inside.
    component Card: Rectangle {
        default property alias rows: rowsColumn.data
        Layout.fillWidth: true
        implicitHeight: rowsColumn.implicitHeight
        radius: 8
        color: scheme.colors.card
        border.color: scheme.colors.separator
        border.width: 1
        ColumnLayout {
            id: rowsColumn
            anchors.left: parent.left
            anchors.right: parent.right
            spacing: 0
        }
    }

    component Separator: Rectangle {
        Layout.fillWidth: true
        Layout.leftMargin: 12
        implicitHeight: 1
        color: scheme.colors.separator
    }

    // One row: a label on the leading side, the control on the trailing side.
    component FormRow: RowLayout {
        property alias label: rowLabel.text
        Layout.fillWidth: true
        Layout.leftMargin: 12
        Layout.rightMargin: 10
        Layout.minimumHeight: 38
        spacing: 10
        // Dimmed, with its control, while the row cannot be changed.
        opacity: enabled ? 1 : 0.45
        Label {
            id: rowLabel
            Layout.fillWidth: true
            wrapMode: Text.Wrap
            verticalAlignment: Text.AlignVCenter
        }
    }

    component Hint: Label {
        Layout.fillWidth: true
        Layout.leftMargin: 12
        Layout.rightMargin: 12
        Layout.bottomMargin: 9
        wrapMode: Text.Wrap
        font.pixelSize: root.captionPx
        color: scheme.colors.secondaryText
    }

    component ToggleRow: FormRow {
        id: toggleRow
        property alias checked: toggle.checked
        property alias toggleName: toggle.objectName
        signal toggled(bool on)
        Switch {
            id: toggle
            Accessible.name: toggleRow.label
            onToggled: toggleRow.toggled(checked)
        }
    }

    // A picker of `count` choices named by `labels`.
    component Picker: ComboBox {
        id: picker
        property var labels: []
        Layout.preferredWidth: root.controlWidth
        displayText: currentIndex >= 0 && currentIndex < labels.length ? labels[currentIndex] : ""
        delegate: ItemDelegate {
            objectName: picker.objectName + "Choice" + index
            width: ListView.view ? ListView.view.width : implicitWidth
            text: picker.labels[index] !== undefined ? picker.labels[index] : ""
            highlighted: picker.highlightedIndex === index
            font.weight: picker.currentIndex === index ? Font.DemiBold : Font.Normal
        }
    }

    Flickable {
        id: flick
        anchors.fill: parent
        contentWidth: width
        contentHeight: form.implicitHeight + 28
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollBar.vertical: ScrollBar { policy: ScrollBar.AsNeeded }

        ColumnLayout {
            id: form
            x: 16
            y: 4
            width: flick.width - 32
            spacing: 0

            // --- General -------------------------------------------------
            SectionHeader { text: texts.general }
            Card {
                ToggleRow {
                    label: texts.launchAtLogin
                    toggleName: "launchAtLoginSwitch"
                    checked: appSettings.launchAtLogin
                    onToggled: (on) => prefs.setLaunchAtLogin(on)
                }
                Separator {}
                FormRow {
                    label: texts.refreshEvery
                    Picker {
                        objectName: "refreshPicker"
                        readonly property var values: [1.0, 2.0, 5.0]
                        model: 3
                        labels: [texts.sec1, texts.sec2, texts.sec5]
                        currentIndex: values.indexOf(appSettings.refreshInterval)
                        onActivated: (index) => appSettings.refreshInterval = values[index]
                    }
                }
                Separator {}
                FormRow {
                    label: texts.temperature
                    Picker {
                        objectName: "temperaturePicker"
                        model: 2
                        labels: [texts.celsius, texts.fahrenheit]
                        currentIndex: appSettings.useFahrenheit ? 1 : 0
                        onActivated: (index) => appSettings.useFahrenheit = index === 1
                    }
                }
                Separator {}
                FormRow {
                    label: texts.language
                    Picker {
                        objectName: "languagePicker"
                        model: prefs.languageNames.length
                        labels: prefs.languageNames
                        currentIndex: loc.language
                        onActivated: (index) => prefs.setLanguage(index)
                    }
                }
            }

            // --- Personality ---------------------------------------------
            SectionHeader { text: texts.personality }
            Card {
                ToggleRow {
                    label: texts.showMood
                    toggleName: "showMoodSwitch"
                    checked: appSettings.moodEnabled
                    onToggled: (on) => appSettings.moodEnabled = on
                }
                Separator {}
                FormRow {
                    label: texts.petName
                    TextField {
                        objectName: "petNameField"
                        Layout.preferredWidth: root.controlWidth
                        text: appSettings.petName
                        placeholderText: texts.petPlaceholder
                        selectByMouse: true
                        Accessible.name: texts.petName
                        onTextEdited: appSettings.petName = text
                    }
                }
                Hint { objectName: "petHint"; text: texts.petHint }
                Separator {}
                ToggleRow {
                    label: texts.savageMode
                    toggleName: "savageModeSwitch"
                    checked: appSettings.savageMode
                    onToggled: (on) => prefs.setSavageMode(on)
                }
                Hint { text: texts.savageModeHint }
            }

            // --- Modules in panel, in the panel's order -----------------
            SectionHeader { text: texts.modulesInPanel }
            Card {
                ToggleRow {
                    label: "CPU"
                    toggleName: "showCPUSwitch"
                    checked: appSettings.showCPU
                    onToggled: (on) => appSettings.showCPU = on
                }
                Separator {}
                ToggleRow {
                    label: texts.memory
                    toggleName: "showMemorySwitch"
                    checked: appSettings.showMemory
                    onToggled: (on) => appSettings.showMemory = on
                }
                Separator {}
                ToggleRow {
                    label: texts.processes
                    toggleName: "showProcessesSwitch"
                    checked: appSettings.showProcesses
                    onToggled: (on) => appSettings.showProcesses = on
                }
                Separator {}
                ToggleRow {
                    label: texts.network
                    toggleName: "showNetworkSwitch"
                    checked: appSettings.showNetwork
                    onToggled: (on) => appSettings.showNetwork = on
                }
                Separator {}
                ToggleRow {
                    label: texts.disk
                    toggleName: "showDiskSwitch"
                    checked: appSettings.showDisk
                    onToggled: (on) => appSettings.showDisk = on
                }
                Separator {}
                ToggleRow {
                    label: texts.sensors
                    toggleName: "showSensorsSwitch"
                    checked: appSettings.showSensors
                    onToggled: (on) => appSettings.showSensors = on
                }
            }

            // --- About ---------------------------------------------------
            SectionHeader { text: texts.about }
            Card {
                // Icon, name and version, and the update button, centred on
                // one line. Anchored rather than laid out, so that text that
                // wraps differently after a language change never leaves a
                // piece at its old height.
                Item {
                    id: aboutRow
                    Layout.fillWidth: true
                    Layout.margins: 12
                    Layout.rightMargin: 10
                    implicitHeight: Math.max(appIcon.visible ? appIcon.height : 0, aboutText.implicitHeight,
                                             updateButton.implicitHeight)

                    Item {
                        id: appIcon
                        objectName: "appIcon"
                        visible: prefs.iconSource !== ""
                        width: 44
                        height: 44
                        anchors.left: parent.left
                        anchors.verticalCenter: parent.verticalCenter
                        Image {
                            anchors.fill: parent
                            source: prefs.iconSource
                            sourceSize: Qt.size(88, 88)
                            fillMode: Image.PreserveAspectFit
                            // Loaded once per window, outside the shared image cache.
                            cache: false
                            smooth: true
                        }
                    }
                    ColumnLayout {
                        id: aboutText
                        anchors.left: appIcon.visible ? appIcon.right : parent.left
                        anchors.leftMargin: appIcon.visible ? 10 : 0
                        anchors.right: updateButton.left
                        anchors.rightMargin: 10
                        anchors.verticalCenter: parent.verticalCenter
                        spacing: 2
                        Label {
                            Layout.fillWidth: true
                            text: "sulkbox"
                            font.pixelSize: Math.round(root.basePx * 1.08)
                            font.weight: Font.DemiBold
                        }
                        Label {
                            objectName: "versionLabel"
                            Layout.fillWidth: true
                            text: fmt.fill(texts.versionFmt, [prefs.versionText])
                            font.pixelSize: root.captionPx
                            color: scheme.colors.secondaryText
                            wrapMode: Text.Wrap
                        }
                        Label {
                            Layout.fillWidth: true
                            text: texts.tagline
                            font.pixelSize: root.smallCaptionPx
                            color: scheme.colors.tertiaryText
                            wrapMode: Text.Wrap
                        }
                    }
                    Button {
                        id: updateButton
                        objectName: "checkForUpdatesButton"
                        anchors.right: parent.right
                        anchors.verticalCenter: parent.verticalCenter
                        text: texts.checkForUpdates
                        enabled: prefs.updatesConfigured
                        opacity: enabled ? 1 : 0.45
                        onClicked: prefs.checkForUpdates()
                    }
                }
                Hint {
                    objectName: "updatesFromDistroHint"
                    visible: !prefs.updatesConfigured
                    text: texts.updatesFromDistro
                }
                Separator {}
                ToggleRow {
                    label: texts.autoUpdate
                    toggleName: "autoUpdateSwitch"
                    enabled: prefs.updatesConfigured
                    checked: appSettings.automaticUpdateChecks
                    onToggled: (on) => appSettings.automaticUpdateChecks = on
                }
            }
        }
    }
}
