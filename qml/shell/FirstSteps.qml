import QtQuick

// What a view shows while it has no picture: without a project, the buttons that lead to one.
Loader {
    id: firstSteps

    required property var scene
    property string text
    property string openText

    sourceComponent: MainWindow.projectLoaded ? projectOpen : noProject

    Component {
        id: noProject

        EmptyState {
            icon: "svgicons/film.svg"
            title: qsTr("No project")
            text: firstSteps.text

            TextButton {
                text: qsTr("Create New Project")
                icon: "svgicons/new-project.svg"
                onClicked: firstSteps.scene.createNewProject()
            }

            TextButton {
                text: qsTr("Open Project")
                icon: "svgicons/open.svg"
                onClicked: firstSteps.scene.openProject()
            }

            TextButton {
                text: qsTr("Recent Projects")
                icon: "svgicons/recent.svg"
                onClicked: firstSteps.scene.lastProjects()
            }
        }
    }

    Component {
        id: projectOpen

        EmptyState {
            icon: "svgicons/image.svg"
            title: MainWindow.projName
            text: firstSteps.openText
        }
    }
}
