import QtQuick

// What happens to the live view and the timeline while one shoots.
Column {
    id: group

    readonly property int shortestMinutes: 5
    readonly property int longestMinutes: 180

    spacing: Theme.padding

    PropertiesRow {
        id: pause

        objectName: "pauseLiveView"
        width: parent.width
        checkable: true
        text: qsTranslate("PropertiesDialog", "Pause live view after")
        toolTip: qsTranslate("PropertiesDialog", "Spares the camera when nobody works with it")
        checked: WebcamGlobal.inactivityWatchOn
        onSwitched: on => {
            WebcamGlobal.inactivityWatchOn = on;
            MainWindow.addSetting("inactivityWatcher", on);
        }

        NumberInput4 {
            objectName: "pauseMinutes"
            width: Math.min(implicitWidth, parent.width)
            toolTip: pause.text
            suffix: qsTranslate("PropertiesDialog", "min.")
            active: WebcamGlobal.inactivityWatchOn
            minimum: group.shortestMinutes
            maximum: group.longestMinutes
            value: WebcamGlobal.inactivityMaximum
            onEdited: minutes => {
                WebcamGlobal.inactivityMaximum = minutes;
                MainWindow.addSetting("inactivityMax", minutes);
            }
        }
    }

    PropertiesCheck {
        objectName: "jumpToLastFrame"
        width: Math.min(implicitWidth, parent.width)
        caption: qsTranslate("PropertiesDialog", "Auto jump to last frame")
        toolTip: qsTranslate("PropertiesDialog", "Go to the new frame after each shot")
        checked: WebcamGlobal.jumpToLastFrame
        onSwitched: on => {
            WebcamGlobal.jumpToLastFrame = on;
            MainWindow.addSetting("jumpToLastFrame", on);
        }
    }
}
