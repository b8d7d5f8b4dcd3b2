import QtQuick

// The context menu of a frame, where the pointer is.
Item {
    id: anchor

    required property var commands

    // As things stand when the menu opens.
    function entries() {
        return [
            { text: qsTr("Copy"), icon: "svgicons/copy.svg", shortcut: "Ctrl+C", active: commands.allowManipulate,
                action: () => commands.copyFrames() },
            { text: qsTr("Cut"), icon: "svgicons/cut.svg", shortcut: "Ctrl+X", active: commands.allowManipulate,
                action: () => commands.cutFrames() },
            { text: qsTr("Paste"), icon: "svgicons/paste.svg", shortcut: "Ctrl+V",
                active: commands.allowManipulate && (FramesModel.copyModeOn || FramesModel.cutModeOn),
                action: () => commands.pasteFrames() },
            { text: qsTr("Duplicate"), icon: "svgicons/duplicate.svg", shortcut: "Ctrl+D",
                active: commands.allowManipulate, action: () => commands.dublicateFrames() },
            { text: qsTr("Select"), icon: "svgicons/select.svg", shortcut: "Ins", active: commands.allowManipulate,
                action: () => FramesModel.switchSelectionOnSingleFrame(FramesModel.currentIndex) },
            { text: qsTr("Select All"), icon: "svgicons/select-all.svg", shortcut: "Ctrl+A",
                active: commands.allowManipulate, action: () => FramesModel.selectAll() },
            { text: qsTr("Mirror"), icon: "svgicons/mirror.svg", active: commands.allowManipulate,
                action: () => commands.mirrorFrames() },
            { text: qsTr("Hide or show"), icon: "svgicons/hide.svg", active: commands.allowManipulate,
                action: () => commands.hideFrames() },
            { text: qsTr("Begin the range here"), icon: "svgicons/goto-start.svg",
                active: FramesModel.currentIndex <= FramesModel.timelineRangeEnd,
                action: () => FramesModel.timelineRangeStart = FramesModel.currentIndex },
            { text: qsTr("End the range here"), icon: "svgicons/goto-end.svg",
                active: FramesModel.currentIndex >= FramesModel.timelineRangeStart,
                action: () => FramesModel.timelineRangeEnd = FramesModel.currentIndex },
            { text: FramesModel.deletionConfirmed ? qsTr("Delete now") : qsTr("Delete"), icon: "svgicons/delete.svg",
                shortcut: "Del", active: commands.allowManipulate, action: () => commands.deleteFrames() }
        ];
    }

    function openAt(x, y) {
        anchor.x = x;
        anchor.y = y;
        loader.active = true;
        loader.item.model = entries();
        loader.item.open();
    }

    width: 1
    height: 1

    Loader {
        id: loader

        active: false
        sourceComponent: DropPanel {
            id: panel

            property alias model: list.model

            owner: anchor
            contentWidth: list.implicitWidth
            contentHeight: list.implicitHeight
            onOpenedChanged: {
                if (opened) {
                    list.currentIndex = -1;
                    list.forceActiveFocus();
                } else {
                    FocusHome.goHome();
                }
            }

            MenuList {
                id: list

                anchors.fill: parent
                label: qsTr("Frame")
                onChosen: panel.close()
                onDismissed: panel.close()
            }
        }
    }
}
