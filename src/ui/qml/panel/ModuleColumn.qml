import QtQuick
import Sulkbox 1.0

// The modules the settings ask for, in their fixed order, a divider between
// each two. A module switched off is unloaded; the others keep their state.
Column {
    id: column

    property MemoryCleanup cleanup

    // cpu, memory, processes, network, disk, sensors
    readonly property var shown: [appSettings.showCPU, appSettings.showMemory, appSettings.showProcesses,
                                  appSettings.showNetwork, appSettings.showDisk, appSettings.showSensors]
    readonly property real innerWidth: width - leftPadding - rightPadding

    function dividerBefore(i) {
        if (!shown[i])
            return false
        for (let j = 0; j < i; ++j) {
            if (shown[j])
                return true
        }
        return false
    }

    topPadding: 12
    bottomPadding: 12
    leftPadding: 14
    rightPadding: 14

    Loader {
        objectName: "cpuModule"
        width: column.innerWidth
        active: column.shown[0]
        visible: active
        sourceComponent: CPUSection {}
    }
    SectionDivider { width: column.innerWidth; visible: column.dividerBefore(1) }
    Loader {
        objectName: "memoryModule"
        width: column.innerWidth
        active: column.shown[1]
        visible: active
        sourceComponent: MemorySection { cleanup: column.cleanup }
    }
    SectionDivider { width: column.innerWidth; visible: column.dividerBefore(2) }
    Loader {
        objectName: "processesModule"
        width: column.innerWidth
        active: column.shown[2]
        visible: active
        sourceComponent: ProcessSection {}
    }
    SectionDivider { width: column.innerWidth; visible: column.dividerBefore(3) }
    Loader {
        objectName: "networkModule"
        width: column.innerWidth
        active: column.shown[3]
        visible: active
        sourceComponent: NetworkSection {}
    }
    SectionDivider { width: column.innerWidth; visible: column.dividerBefore(4) }
    Loader {
        objectName: "diskModule"
        width: column.innerWidth
        active: column.shown[4]
        visible: active
        sourceComponent: DiskSection {}
    }
    SectionDivider { width: column.innerWidth; visible: column.dividerBefore(5) }
    Loader {
        objectName: "sensorsModule"
        width: column.innerWidth
        active: column.shown[5]
        visible: active
        sourceComponent: SensorsSection {}
    }
}
