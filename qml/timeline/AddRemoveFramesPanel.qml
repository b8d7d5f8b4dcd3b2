import QtQuick

// "Add" or "Replace" with the panel of what frames can come from.
DropButton {
    id: button

    required property var commands
    property bool adding: true
    property bool wanted: false

    function openPanel() {
        FramesModel.addInsteadOfReplace = button.adding;
        button.open();
    }

    function closePanel() {
        button.close();
    }

    trailingIcon: ""
    panelContentWidth: entries.item ? entries.item.implicitWidth : 0
    panelContentHeight: entries.item ? entries.item.implicitHeight : 0
    onOpenedChanged: {
        if (!opened)
            return;
        FramesModel.addInsteadOfReplace = button.adding;
        button.wanted = true;
    }

    // Made when it is first opened.
    Loader {
        id: entries

        active: button.wanted
        sourceComponent: AddRemoveEntries {
            commands: button.commands
            adding: button.adding
            onChosen: button.close()
        }
    }
}
