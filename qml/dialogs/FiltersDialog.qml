import QtQuick

// The filters of the picture. Each control takes effect as it is used.
DialogBox {
    id: dialog

    heading: qsTr("Filters")
    implicitWidth: Math.max(0, Math.min(ControlsPanesBoxW, roomX))
    buttons: [
        DialogButton {
            objectName: "closeFilters"
            width: Math.min(implicitWidth, dialog.width - 2 * dialog.margin)
            text: qsTr("Close")
            toolTip: text
            toggled: true
            onClicked: WebcamGlobal.dialogClosing()
        }
    ]

    FiltersControls {
        width: parent.width
    }
}
