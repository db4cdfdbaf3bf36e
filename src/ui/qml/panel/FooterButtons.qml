import QtQuick
import Sulkbox 1.0

// System Monitor on the left; preferences and Quit on the right.
Item {
    id: footer

    implicitHeight: Math.max(monitorButton.height, gearButton.height, quitButton.height)

    component FooterButton: Item {
        id: button

        property string label
        property string icon
        property int pixelSize: 11
        property int iconSize: 11
        signal activated()

        width: content.implicitWidth + 8
        height: Math.max(content.implicitHeight, iconSize) + 6

        Accessible.role: Accessible.Button
        Accessible.name: label

        Row {
            id: content
            anchors.centerIn: parent
            spacing: 4
            Icon {
                visible: button.icon !== ""
                name: button.icon
                color: labelText.color
                width: button.iconSize
                height: button.iconSize
                anchors.verticalCenter: parent.verticalCenter
            }
            Text {
                id: labelText
                visible: button.label !== ""
                text: button.label
                color: area.containsMouse ? Theme.primary : Theme.secondary
                font.pixelSize: button.pixelSize
                anchors.verticalCenter: parent.verticalCenter
            }
        }
        opacity: area.pressed ? 0.6 : 1

        MouseArea {
            id: area
            anchors.fill: parent
            hoverEnabled: true
            onClicked: button.activated()
        }
    }

    FooterButton {
        id: monitorButton
        objectName: "systemMonitorButton"
        x: -4
        anchors.verticalCenter: parent.verticalCenter
        icon: "chart"
        label: texts.activityMonitor
        onActivated: app.openSystemMonitor()
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: -4
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4
        FooterButton {
            id: gearButton
            objectName: "preferencesButton"
            icon: "gear"
            iconSize: 12
            onActivated: app.openPreferences()
        }
        FooterButton {
            id: quitButton
            objectName: "quitButton"
            label: texts.quit
            onActivated: app.quit()
        }
    }
}
