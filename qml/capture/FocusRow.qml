import QtQuick

// Six steps of the lens: three sizes in each direction. Only for a device whose lens can be moved by hand.
Flow {
    id: focusRow

    readonly property var device: MainWindow.capturingDeviceObject
    readonly property var steps: [
        { name: "focusNear3", text: "<<<", toolTip: qsTr("Focus much nearer") },
        { name: "focusNear2", text: "<<", toolTip: qsTr("Focus nearer") },
        { name: "focusNear1", text: "<", toolTip: qsTr("Focus a little nearer") },
        { name: "focusFar1", text: ">", toolTip: qsTr("Focus a little farther") },
        { name: "focusFar2", text: ">>", toolTip: qsTr("Focus farther") },
        { name: "focusFar3", text: ">>>", toolTip: qsTr("Focus much farther") }
    ]

    spacing: Theme.spacing

    Repeater {
        model: focusRow.steps
        delegate: TextButton {
            required property var modelData

            text: modelData.text
            label: modelData.toolTip
            toolTip: modelData.toolTip
            active: focusRow.device ? focusRow.device.manualFocusEnabled : false
            onClicked: focusRow.device[modelData.name]()
        }
    }
}
