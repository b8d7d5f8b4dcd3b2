import QtQuick

// The first step: a new project, one from a file, or one of those opened last.
FirstStep {
    id: step

    required property var scene
    readonly property int mostRecent: 3
    property var recent: []

    function takeFocus() {
        create.forceActiveFocus(Qt.TabFocusReason);
    }

    function readRecent() {
        recent = Object.values(MainWindow.getGroupSetting(LastProjectsKey))
            .filter(project => project && project.name && MainWindow.fileExists(project.path ?? ""))
            .sort((a, b) => Number(b.sortkey ?? 0) - Number(a.sortkey ?? 0));
    }

    number: 1
    title: qsTr("Create or open a project")
    text: done ? MainWindow.projName : qsTr("Frames go into a project: one file and a folder beside it.")
    onDoneChanged: readRecent()
    Component.onCompleted: readRecent()

    Connections {
        target: MainWindow

        // The dialog of the recent projects and that of the settings can remove some.
        function onQmlDialogUrlChanged() {
            step.readRecent();
        }
    }

    Flow {
        width: parent.width
        spacing: Theme.spacing

        DialogButton {
            id: create

            objectName: "createFirst"
            width: Math.min(implicitWidth, parent.width)
            text: qsTr("Create New Project")
            icon: "svgicons/new-project.svg"
            toolTip: qsTr("Choose a name and a place for the project") + " [Ctrl+N]"
            toggled: true
            onClicked: step.scene.createNewProject()
        }

        DialogButton {
            objectName: "openFirst"
            width: Math.min(implicitWidth, parent.width)
            text: qsTr("Open Project")
            icon: "svgicons/open.svg"
            toolTip: qsTr("Open a project file") + " [Ctrl+O]"
            onClicked: step.scene.openProject()
        }
    }

    TextLabel {
        width: parent.width
        visible: step.recent.length > 0
        small: true
        dim: true
        text: qsTr("Opened last")
    }

    Flow {
        width: parent.width
        visible: step.recent.length > 0
        spacing: Theme.spacing

        Repeater {
            model: step.recent.slice(0, step.mostRecent)
            delegate: TextButton {
                required property var modelData

                objectName: "recentFirst"
                width: Math.min(implicitWidth, parent ? parent.width : 0)
                text: modelData.name
                icon: "svgicons/film.svg"
                toolTip: modelData.path
                onClicked: step.scene.openProject(modelData.path)
            }
        }

        TextButton {
            objectName: "moreRecentFirst"
            visible: step.recent.length > step.mostRecent
            text: "..."
            label: qsTr("Recent Projects")
            toolTip: qsTr("Recent Projects") + " [F3]"
            onClicked: step.scene.lastProjects()
        }
    }
}
