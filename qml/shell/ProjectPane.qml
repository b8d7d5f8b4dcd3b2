import QtQuick

// What belongs to the project as a whole: its frame size, its rate and who makes it.
Column {
    id: projectPane

    required property var scene

    spacing: DefFontSizeMicro

    Pane {
        width: projectPane.width
        title: qsTr("Project")

        TextLabel {
            width: parent.width
            wrapMode: Text.WrapAnywhere
            small: true
            dim: true
            text: MainWindow.projDirPath
        }

        ProjectNumber {
            width: parent.width
            text: qsTr("Frame width")
            value: WebcamGlobal.cropAreaW
            minimum: 8
            maximum: MaxFrameWidth
            step: 8
            onEdited: value => WebcamGlobal.cropAreaW = value
        }

        ProjectNumber {
            width: parent.width
            text: qsTr("Frame height")
            value: WebcamGlobal.cropAreaH
            minimum: 8
            maximum: MaxFrameHeight
            step: 8
            onEdited: value => WebcamGlobal.cropAreaH = value
        }

        TextButton {
            width: Math.min(implicitWidth, parent.width)
            text: qsTr("Presets")
            icon: "svgicons/preset.svg"
            toolTip: qsTr("Choose a frame size and rate from a list")
            onClicked: projectPane.scene.projectPresetsBox()
        }

        ProjectNumber {
            width: parent.width
            text: qsTr("Frames per second")
            value: FramesModel.timelineFps
            minimum: 1
            maximum: maxFps
            step: 1
            decimals: 2
            onEdited: value => FramesModel.timelineFps = value
        }

        ProjectNumber {
            width: parent.width
            text: qsTr("Number of the first frame")
            value: FramesModel.startIndex
            minimum: 0
            maximum: startIndexMax
            onEdited: value => FramesModel.startIndex = value
        }
    }

    Pane {
        width: projectPane.width
        title: qsTr("Film")

        Repeater {
            model: [
                { name: "movieTitle", text: qsTr("Title") },
                { name: "movieDirector", text: qsTr("Director") },
                { name: "movieScene", text: qsTr("Scene") },
                { name: "movieLayer", text: qsTr("Layer") },
                { name: "authorName", text: qsTr("Animator's name") },
                { name: "authorSurname", text: qsTr("Animator's surname") }
            ]
            delegate: TextPropertyInput {
                required property var modelData

                width: parent.width
                placeholder: modelData.text
                label: modelData.text
                text: WebcamGlobal[modelData.name]
                onEdited: text => WebcamGlobal[modelData.name] = text
            }
        }
    }

    Pane {
        width: projectPane.width
        title: qsTr("Files")

        Flow {
            width: parent.width
            spacing: DefFontSizeMicro

            TextButton {
                width: Math.min(implicitWidth, parent.width)
                text: qsTr("Save Project As")
                icon: "svgicons/save-as.svg"
                toolTip: qsTr("Save under another name, pictures and all")
                onClicked: projectPane.scene.saveProjectAs()
            }

            TextButton {
                width: Math.min(implicitWidth, parent.width)
                text: qsTr("Import Project")
                icon: "svgicons/add.svg"
                toolTip: qsTr("Add the frames of another project at the end, with copies of their pictures")
                onClicked: MainWindow.importFrames()
            }

            TextButton {
                width: Math.min(implicitWidth, parent.width)
                text: qsTr("Close Project")
                icon: "svgicons/close.svg"
                toolTip: WebcamGlobal.projectChanged ? qsTr("Save the project before it is closed") : qsTr("Close the project")
                active: !WebcamGlobal.projectChanged
                onClicked: MainWindow.closeProject()
            }

            TextButton {
                width: Math.min(implicitWidth, parent.width)
                text: qsTr("Clean Up")
                icon: "svgicons/trash.svg"
                toolTip: qsTr("Save, and remove pictures that no frame uses any more")
                onClicked: projectPane.scene.cleanupConfirmBox()
            }
        }
    }
}
