import QtQuick

// What a view shows while there is no project: the buttons that lead to one.
Loader {
    id: noProject

    required property var scene
    property string text

    sourceComponent: EmptyState {
        icon: "svgicons/film.svg"
        title: qsTr("No project")
        text: noProject.text

        TextButton {
            text: qsTr("Create New Project")
            icon: "svgicons/new-project.svg"
            onClicked: noProject.scene.createNewProject()
        }

        TextButton {
            text: qsTr("Open Project")
            icon: "svgicons/open.svg"
            onClicked: noProject.scene.openProject()
        }

        TextButton {
            text: qsTr("Recent Projects")
            icon: "svgicons/recent.svg"
            onClicked: noProject.scene.lastProjects()
        }
    }
}
