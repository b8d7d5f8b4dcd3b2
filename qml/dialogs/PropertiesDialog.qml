import QtQuick

// The settings of the program. Each control takes effect, and is remembered, as it is used.
DialogBox {
    id: dialog

    heading: qsTr("Application Settings")
    buttons: [
        DialogButton {
            objectName: "saveAndClose"
            width: Math.min(implicitWidth, dialog.width - 2 * dialog.margin)
            text: qsTr("Save and Close")
            toolTip: text
            toggled: true
            onClicked: WebcamGlobal.dialogClosing()
        }
    ]

    PropertiesDevice {
        width: parent.width
    }

    PropertiesLanguage {
        width: parent.width
    }

    PropertiesCapture {
        width: parent.width
    }

    PropertiesAutosave {
        width: parent.width
    }

    PropertiesSounds {
        width: parent.width
    }

    PropertiesFont {
        width: parent.width
    }

    PropertiesLightbox {
        width: parent.width
    }

    PropertiesEditor {
        width: parent.width
    }
}
