import QtQuick

// How far a work has come, as a bar and in words.
Column {
    id: progress

    required property int total
    required property int current
    required property bool counted
    required property string remainingText

    spacing: Theme.spacing

    ProgressLine {
        objectName: "progressLine"
        width: parent.width
        implicitHeight: DefFontSizeNormal
        total: progress.total
        current: progress.current
        indeterminate: !progress.counted
    }

    Flow {
        width: parent.width
        spacing: DefFontSizeNormal

        TextLabel {
            objectName: "percent"
            visible: progress.counted
            text: Math.floor(100 * Math.max(0, Math.min(1, progress.current / progress.total))) + " %"
        }

        TextLabel {
            objectName: "remaining"
            visible: text !== ""
            width: Math.min(implicitWidth, parent.width)
            dim: true
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            text: progress.counted && progress.remainingText !== ""
                  ? qsTranslate("LoadDialog", "Remaining time:") + " " + progress.remainingText : ""
        }
    }
}
