import QtQuick

// The line between two modules, 10 clear above and below.
Item {
    implicitHeight: 21
    Rectangle {
        y: 10
        width: parent.width
        height: 1
        color: Theme.separator
    }
}
