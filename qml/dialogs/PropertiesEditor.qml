import QtQuick

// The program that opens pictures for retouching.
PropertiesRow {
    id: row

    readonly property bool known: MainWindow.externalEditor !== ""

    text: qsTranslate("PropertiesDialog", "External Editor")

    TextLabel {
        objectName: "editorName"
        width: parent.width
        height: Math.max(Theme.controlHeight, implicitHeight)
        dim: !row.known
        text: row.known ? MainWindow.externalEditorName : qsTranslate("PropertiesDialog", "None")
        wrapMode: Text.Wrap
        elide: Text.ElideNone
    }

    Flow {
        width: parent.width
        spacing: Theme.spacing

        DialogButton {
            objectName: "chooseEditor"
            width: Math.min(implicitWidth, parent.width)
            text: qsTranslate("PropertiesDialog", "Choose...")
            toolTip: qsTranslate("PropertiesDialog", "Choose an external editor...")
            onClicked: MainWindow.setExternalEditor()
        }

        DialogButton {
            objectName: "clearEditor"
            width: Math.min(implicitWidth, parent.width)
            active: row.known
            text: qsTranslate("PropertiesDialog", "Clear")
            toolTip: qsTranslate("PropertiesDialog", "Use no external editor")
            onClicked: MainWindow.removeExternalEditor()
        }

        DialogButton {
            objectName: "defaultEditor"
            width: Math.min(implicitWidth, parent.width)
            text: qsTranslate("PropertiesDialog", "Set default external editor")
            toolTip: qsTranslate("PropertiesDialog", "Take the program that opens pictures on this computer")
            onClicked: MainWindow.setDefExternalEditor()
        }
    }
}
