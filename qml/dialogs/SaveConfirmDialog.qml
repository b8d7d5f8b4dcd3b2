import QtQuick
import Zum 1.0

// Asks before unsaved work would be lost. Closed without an answer, nothing happens to the project and what
// was to follow is forgotten.
QuestionBox {
    id: dialog

    property bool answered: false

    function goOnWithoutSaving() {
        const action = WebcamGlobal.afterConfirmAction;
        answered = true;
        WebcamGlobal.afterConfirmAction = Zum.NoAfterConfirmAction;
        if (action === Zum.QuitAfterConfirm) {
            closeAnd(MainWindow.quit, true);
        } else if (action === Zum.OpenProjectAfterConfirm) {
            MainWindow.allowQuietExit = true;
            closeAnd(appWindow.openProject, WebcamGlobal.openProjectAfterConfirmPath);
        } else if (action === Zum.CreateProjectAfterConfirm) {
            MainWindow.allowQuietExit = true;
            closeAnd(appWindow.createNewProject);
        } else {
            WebcamGlobal.dialogClosing();
        }
    }

    question: qsTr("Save Project?")
    okText: qsTr("Ok")
    cancelText: qsTr("Cancel")
    onConfirmed: {
        answered = true;
        closeAnd(WebcamGlobal.saveProject);
    }
    onRefused: goOnWithoutSaving()
    Component.onDestruction: {
        if (!answered)
            WebcamGlobal.afterConfirmAction = Zum.NoAfterConfirmAction;
    }

    TextLabel {
        width: parent.width
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        dim: true
        text: qsTr("Ok saves it, Cancel goes on without saving. Close this dialog to go back to work.")
    }
}
