import QtQuick

// Sounds, tool tips and the hints at first steps.
Flow {
    id: group

    spacing: Theme.padding

    PropertiesCheck {
        objectName: "sounds"
        width: Math.min(implicitWidth, group.width)
        caption: qsTranslate("PropertiesDialog", "Sounds")
        toolTip: qsTranslate("PropertiesDialog", "Sounds of warnings and errors")
        checked: WebcamGlobal.soundsOn
        onSwitched: on => {
            WebcamGlobal.soundsOn = on;
            MainWindow.addSetting("soundsOn", on);
        }
    }

    PropertiesCheck {
        objectName: "beep"
        width: Math.min(implicitWidth, group.width)
        caption: qsTranslate("PropertiesDialog", "Beep on capture")
        toolTip: qsTranslate("PropertiesDialog", "A sound for every captured frame")
        checked: WebcamGlobal.beepWhenCaptured
        onSwitched: on => {
            WebcamGlobal.beepWhenCaptured = on;
            MainWindow.addSetting("beepWhenCaptured", on);
        }
    }

    PropertiesCheck {
        objectName: "toolTips"
        width: Math.min(implicitWidth, group.width)
        caption: qsTranslate("PropertiesDialog", "Tooltips")
        toolTip: qsTranslate("PropertiesDialog", "Notes such as this one")
        checked: WebcamGlobal.showToolTips
        onSwitched: on => {
            WebcamGlobal.showToolTips = on;
            MainWindow.addSetting("showToolTips", on);
        }
    }

    PropertiesCheck {
        objectName: "firstSteps"
        width: Math.min(implicitWidth, group.width)
        caption: qsTranslate("PropertiesDialog", "Hints at first steps")
        toolTip: qsTranslate("PropertiesDialog", "Lead anew through the first capture, playback and render")
        checked: !FirstStepsDone.all
        onSwitched: on => FirstStepsDone.switchHints(on)
    }
}
