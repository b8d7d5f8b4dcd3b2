import QtQuick

// The facts of the open project that stand in the top line; the last ones give way when there is little room.
Item {
    id: status

    readonly property var facts: MainWindow.projectLoaded ? [
        MainWindow.projName + (WebcamGlobal.projectChanged ? " *" : ""),
        qsTr("%1 fps").arg(FramesModel.timelineFps),
        WebcamGlobal.cropAreaW + "x" + WebcamGlobal.cropAreaH,
        qsTr("%1 frames").arg(FramesModel.framesCount)
    ] : [qsTr("No project")]

    implicitHeight: row.height
    clip: true

    Row {
        id: row

        spacing: DefFontSizeMicro

        Repeater {
            // A number, so that a changed fact makes no labels anew.
            model: status.facts.length
            delegate: TextLabel {
                required property int index

                width: index === 0 ? Math.min(implicitWidth, status.width) : implicitWidth
                visible: index === 0 || x + implicitWidth <= status.width
                text: (index > 0 ? "\u00b7 " : "") + (status.facts[index] ?? "")
                dim: index > 0 || !MainWindow.projectLoaded
            }
        }
    }
}
