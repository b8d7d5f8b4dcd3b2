import QtQuick

// Frame sizes and rates to choose from: a column for each proportion.
DialogBox {
    id: dialog

    readonly property var columns: byProportion(MainWindow.projectPresets)
    readonly property int columnCount: Math.max(1, columns.length)
    readonly property int rowCount: columns.reduce((most, column) => Math.max(most, column.presets.length), 0)

    function byProportion(presets) {
        const found = [];
        for (const preset of presets) {
            let column = found.find(candidate => candidate.proportion === preset.proportion);
            if (!column) {
                column = { proportion: preset.proportion, presets: [] };
                found.push(column);
            }
            column.presets.push(preset);
        }
        return found;
    }

    // Cells run along the rows; undefined where a column is shorter than others.
    function presetAt(cell) {
        return columns[cell % columnCount]?.presets[Math.floor(cell / columnCount)];
    }

    function choose(preset) {
        WebcamGlobal.cropAreaProportion = 0;
        WebcamGlobal.cropAreaW = preset.framewidth;
        WebcamGlobal.cropAreaH = preset.frameheight;
        FramesModel.timelineFps = preset.fps;
        WebcamGlobal.dialogClosing();
    }

    heading: qsTr("Project Presets")
    Component.onCompleted: grid.forceActiveFocus()

    Row {
        id: head

        Repeater {
            model: dialog.columns
            delegate: TextLabel {
                required property var modelData

                width: grid.cellWidth
                height: Theme.controlHeight
                horizontalAlignment: Text.AlignHCenter
                color: Theme.active
                text: modelData.proportion
            }
        }
    }

    Item {
        width: parent.width
        height: Math.max(2 * grid.cellHeight,
                         Math.min(grid.contentHeight, dialog.listRoom - head.height - dialog.contentSpacing))

        GridView {
            id: grid

            objectName: "presets"
            width: cellWidth * dialog.columnCount
            height: parent.height
            cellWidth: Math.floor((parent.width - scrollBarW - Theme.spacing) / dialog.columnCount)
            cellHeight: Theme.controlHeight + DefFontSizeNormal_TwoThirds + 1
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            activeFocusOnTab: true
            keyNavigationEnabled: true
            model: dialog.rowCount * dialog.columnCount
            Accessible.role: Accessible.Table
            Accessible.name: dialog.heading
            delegate: ProjectPresetCell {
                required property int index

                preset: dialog.presetAt(index)
                width: grid.cellWidth - 1
                height: grid.cellHeight - 1
                onChosen: dialog.choose(preset)
            }
        }

        Scrollbar {
            anchors.right: parent.right
            height: parent.height
            flickable: grid
        }
    }
}
