import QtQuick
import "LastProjectsDialogWorker.js" as Listing

// The projects opened last, to be opened again.
DialogBox {
    id: dialog

    readonly property int lastProjectsLimit: 8

    function entryOf(project) {
        return {
            name: String(project.name),
            path: String(project.path ?? ""),
            sortkey: Number(project.sortkey ?? 0),
            frames: Number(project.frames ?? 0),
            frameSize: String(project.framesize ?? ""),
            date: String(project.lastModifiedDate ?? ""),
            time: String(project.lastModifiedTime ?? ""),
            thumbnail: MainWindow.fileExists(project.tmb ?? "") ? project.tmb : emptyFrameImage,
            available: MainWindow.fileExists(project.path ?? "")
        };
    }

    function forget(name) {
        MainWindow.removeGroupSetting(LastProjectsKey, name);
    }

    function open(path) {
        if (path === MainWindow.projPath)
            return;
        Qt.callLater(appWindow.openProject, path);
        WebcamGlobal.dialogClosing();
    }

    heading: qsTr("Recent Projects")
    Component.onCompleted: {
        const entries = Object.values(MainWindow.getGroupSetting(LastProjectsKey))
            .filter(project => project && project.name).map(entryOf);
        // Here and not in a WorkerScript: closed before that has answered, the dialog would take the program with it.
        Listing.fill(projects, entries, lastProjectsLimit).forEach(forget);
        Qt.callLater(list.takeFocus);
    }

    ListModel {
        id: projects
    }

    FocusScope {
        id: list

        function takeFocus() {
            if (items.count > 0)
                items.itemAt(0).focusItem(Qt.TabFocusReason);
        }

        function step(by) {
            for (let i = 0; i < items.count; ++i) {
                const next = items.itemAt(i + by);
                if (items.itemAt(i).activeFocus && next) {
                    next.focusItem(Qt.OtherFocusReason);
                    return;
                }
            }
        }

        width: parent.width
        height: column.height
        Keys.onUpPressed: step(-1)
        Keys.onDownPressed: step(1)

        Column {
            id: column

            width: parent.width
            spacing: Theme.spacing

            Repeater {
                id: items

                model: projects
                delegate: LastProjectItem {
                    required property int index

                    objectName: "lastProject"
                    width: column.width
                    current: path === MainWindow.projPath
                    onChosen: dialog.open(path)
                    onRemoved: {
                        dialog.forget(name);
                        projects.remove(index);
                    }
                }
            }
        }
    }

    EmptyState {
        width: parent.width
        visible: projects.count === 0
        icon: "svgicons/recent.svg"
        title: qsTr("No recent projects")
        text: qsTr("Projects that you create or open are listed here.")
    }
}
