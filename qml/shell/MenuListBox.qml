import QtQuick

// The main menu and the button that opens it.
ButtonDropPanel {
    id: menuListBox

    required property var scene
    property bool wanted: false

    icon: "svgicons/menu.svg"
    toolTip: qsTr("Main menu")
    onOpenedChanged: {
        if (opened)
            wanted = true;
    }

    // Made when it is first opened.
    Loader {
        active: menuListBox.wanted
        sourceComponent: MenuList {
            model: [
                { text: qsTr("Create New Project"), icon: "svgicons/new-project.svg", shortcut: "Ctrl+N",
                    action: () => menuListBox.scene.createNewProject() },
                { text: qsTr("Open Project"), icon: "svgicons/open.svg", shortcut: "Ctrl+O",
                    action: () => menuListBox.scene.openProject() },
                { text: qsTr("Recent Projects"), icon: "svgicons/recent.svg", shortcut: "F3",
                    action: () => menuListBox.scene.lastProjects() },
                { text: qsTr("Save Project"), icon: "svgicons/save.svg", shortcut: "Ctrl+S",
                    action: () => menuListBox.scene.saveProject() },
                { text: qsTr("Save Project As"), icon: "svgicons/save-as.svg", shortcut: "",
                    action: () => menuListBox.scene.saveProjectAs() },
                { text: qsTr("Clear Settings"), icon: "svgicons/clear.svg", shortcut: "",
                    action: () => MainWindow.clearSettings() },
                { text: qsTr("Quit"), icon: "svgicons/quit.svg", shortcut: "Ctrl+Q",
                    action: () => MainWindow.quit() }
            ]
            onChosen: WebcamGlobal.globalDismiss()
        }
    }
}
