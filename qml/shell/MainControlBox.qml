import QtQuick
import Zum 1.0

// The tools at the left: project files, undo and the program itself.
Rectangle {
    id: mainControlBox

    required property var scene

    implicitWidth: DefFontSizeNormal_x2Half
    color: GlobalDarkerColor

    Flickable {
        anchors.fill: parent
        anchors.topMargin: DefFontSizeMicro
        contentHeight: tools.height
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: tools

            anchors.horizontalCenter: parent.horizontalCenter
            spacing: DefFontSizeNano

            IconButton {
                icon: "svgicons/new-project.svg"
                toolTip: qsTr("Create a new project") + " [Ctrl+N]"
                onClicked: mainControlBox.scene.createNewProject()
            }

            IconButton {
                icon: "svgicons/open.svg"
                toolTip: qsTr("Open a project") + " [Ctrl+O]"
                onClicked: mainControlBox.scene.openProject()
            }

            IconButton {
                icon: "svgicons/recent.svg"
                toolTip: qsTr("Recent projects") + " [F3]"
                onClicked: mainControlBox.scene.lastProjects()
            }

            IconButton {
                icon: "svgicons/save.svg"
                active: MainWindow.projectLoaded
                toggled: WebcamGlobal.projectChanged
                toolTip: qsTr("Save the project") + " [Ctrl+S]"
                onClicked: mainControlBox.scene.saveProject()
            }

            Item {
                width: 1
                height: DefFontSizeMicro
            }

            IconButton {
                icon: "svgicons/undo.svg"
                active: FramesModel.undoCount > 0 && !FramesModel.playing
                toolTip: qsTr("Undo") + " [Ctrl+Z]"
                onClicked: FramesModel.undo()
            }

            IconButton {
                icon: "svgicons/redo.svg"
                active: FramesModel.undoCount > 0 && !FramesModel.playing
                toolTip: qsTr("Redo") + " [Ctrl+Y]"
                onClicked: FramesModel.redo()
            }

            Item {
                width: 1
                height: DefFontSizeMicro
            }

            IconButton {
                icon: "svgicons/settings.svg"
                toolTip: qsTr("Application settings") + " [P]"
                onClicked: mainControlBox.scene.propertiesBox()
            }

            IconButton {
                icon: "svgicons/info.svg"
                toolTip: qsTr("About the program")
                onClicked: mainControlBox.scene.aboutBox()
            }
        }
    }
}
