import QtQuick

// Saving now and then.
PropertiesRow {
    id: row

    objectName: "autosave"
    checkable: true
    text: qsTranslate("PropertiesDialog", "Autosave")
    toolTip: qsTranslate("PropertiesDialog", "Save the project now and then while it changes")
    checked: MainWindow.performAutosave
    onSwitched: on => {
        MainWindow.performAutosave = on;
        MainWindow.addSetting("performAutosave", on);
    }

    Flow {
        width: parent.width
        spacing: Theme.spacing

        TextLabel {
            height: Theme.controlHeight
            text: qsTranslate("PropertiesDialog", "Interval")
            opacity: minutes.active ? 1 : Theme.disabledOpacity
        }

        NumberInput4 {
            id: minutes

            objectName: "autosaveMinutes"
            width: Math.min(implicitWidth, parent.width)
            toolTip: qsTranslate("PropertiesDialog", "Interval")
            suffix: qsTranslate("PropertiesDialog", "min.")
            active: MainWindow.performAutosave
            minimum: MainWindow.autosaveDelayMin
            maximum: MainWindow.autosaveDelayMax
            value: MainWindow.autosaveDelay
            onEdited: delay => {
                MainWindow.autosaveDelay = delay;
                MainWindow.addSetting("autosaveDelay", delay);
            }
        }
    }
}
