import QtQuick

// What frames can come from, a row for each kind of picture and one for what is neither. A row without entries
// is left out.
Grid {
    id: entries

    required property var commands
    property bool adding: true
    property bool inOneLine: false

    // Each row: title, active, and its entries as {text, icon, toolTip, action}.
    readonly property var rows: [
        { title: qsTr("Captured"), active: true, entries: [] },
        { title: qsTr("Reference"), active: FramesModel.doubleDecker, entries: [] },
        { title: "", active: true, entries: adding ? [projectEntry, emptyEntry] : [emptyEntry] }
    ].filter(row => row.entries.length > 0)

    readonly property var projectEntry: ({
        text: qsTr("Project"),
        icon: "svgicons/folder-open.svg",
        toolTip: qsTr("Add the frames of another project at the end, with copies of their pictures"),
        action: () => MainWindow.importFrames()
    })

    readonly property var emptyEntry: ({
        text: qsTr("Empty Frame"),
        icon: "svgicons/cutframe.svg",
        toolTip: adding ? qsTr("Add a frame without pictures after the current one")
                        : qsTr("Take the pictures out of the current frame"),
        action: () => commands.addEmptyFrame()
    })

    signal chosen()

    columns: inOneLine ? Math.max(1, rows.length) : 1
    spacing: Theme.spacing

    Repeater {
        model: entries.rows
        delegate: Row {
            id: line

            required property var modelData

            spacing: Theme.spacing

            TextLabel {
                visible: text !== ""
                height: Theme.controlHeight
                text: line.modelData.title
                dim: true
            }

            Repeater {
                model: line.modelData.entries
                delegate: TextButton {
                    required property var modelData

                    text: modelData.text
                    icon: modelData.icon
                    toolTip: modelData.toolTip
                    active: line.modelData.active && entries.commands.allowAdd
                    onClicked: {
                        FramesModel.addInsteadOfReplace = entries.adding;
                        entries.chosen();
                        modelData.action();
                    }
                }
            }
        }
    }
}
