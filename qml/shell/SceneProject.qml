import QtQuick
import Zum 1.0

// What the scene does with projects: opens, creates, saves, and tells how it went.
SceneDialogs {
    id: sceneProject

    function tell(type, text) {
        WebcamGlobal.appendMessage(Zum.FileMessage, type, text);
    }

    function openProject(path) {
        const result = MainWindow.projectFileOpen(path === undefined ? "" : path);
        if (result === Zum.FileIsOk)
            tell(Zum.Info, qsTr("Project loaded"));
        else if (result === Zum.FileDoesntExists)
            tell(Zum.Error, qsTr("Project file not found"));
        else if (result === Zum.FileAlreadyOpened)
            tell(Zum.Error, qsTr("Project already loaded"));
        return result;
    }

    function createNewProject() {
        return MainWindow.saveProjectXmlFile(Zum.NewProject);
    }

    function saveProject(mode) {
        return MainWindow.saveProjectXmlFile(mode === undefined ? Zum.SaveProject : mode);
    }

    function saveProjectAs() {
        return MainWindow.saveProjectXmlFile(Zum.SaveProjectAs);
    }

    function addLastProject() {
        MainWindow.addLastProject();
    }
}
