import QtQuick
import Zum 1.0

// The facts of the open project that stand in the top line; the last ones give way when there is little room.
Item {
    id: status

    // How full the memory for pictures is, where pictures are played.
    readonly property var cacheFact: WebcamGlobal.currentActiveTab === Zum.TimingTab && FramesModel.framesCount > 0
                                     ? [qsTr("cache %1 %").arg(Math.round(WebcamGlobal.ramCacheUsedPercent))] : []
    readonly property var facts: MainWindow.projectLoaded ? [
        MainWindow.projName + (WebcamGlobal.projectChanged ? " *" : ""),
        qsTr("%1 fps").arg(FramesModel.timelineFps),
        WebcamGlobal.cropAreaW + "x" + WebcamGlobal.cropAreaH,
        qsTr("%1 frames").arg(FramesModel.framesCount)
    ].concat(cacheFact) : [qsTr("No project")]

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
