import QtQuick

// Left of the strip: how many rows it has, how large the frames are, and a fresh look at them.
Item {
    id: column

    required property var timeline
    required property var commands
    readonly property int count: 3
    readonly property int gap: Math.max(2, Math.floor(timeline.unit / 4))
    readonly property int rows: Math.max(1, Math.min(count, Math.floor((height - gap) / (1.4 * timeline.unit + gap))))
    readonly property int buttonSize: Math.min(2 * timeline.unit, Math.floor((height - gap) / rows) - gap)

    function setRows(two) {
        FramesModel.doubleDecker = two;
        MainWindow.addSetting("doubleDecker", two);
        MainWindow.addSetting("timelineCompact", WebcamGlobal.timelineCompact);
    }

    readonly property int columns: Math.ceil(count / rows)

    implicitWidth: columns * (buttonSize + gap) + gap

    Grid {
        x: column.gap
        y: column.gap
        columns: column.columns
        spacing: column.gap

        IconButton {
            width: column.buttonSize
            height: column.buttonSize
            icon: FramesModel.doubleDecker ? "svgicons/two-rows.svg" : "svgicons/one-row.svg"
            toolTip: FramesModel.doubleDecker ? qsTr("Show the captured frames only")
                                              : qsTr("Show the reference frames below the captured ones")
            label: qsTr("Reference row")
            role: Accessible.CheckBox
            framed: false
            toggled: FramesModel.doubleDecker
            onClicked: column.setRows(!FramesModel.doubleDecker)
        }

        TimelineScale {
            width: column.buttonSize
            height: column.buttonSize
            timeline: column.timeline
        }

        IconButton {
            width: column.buttonSize
            height: column.buttonSize
            icon: "svgicons/refresh.svg"
            toolTip: qsTr("Update static frames indication")
            active: FramesModel.framesCount > 0 && !FramesModel.playing
            onClicked: column.commands.searchStaticness()
        }
    }
}
