import QtQuick
import Zum 1.0

// What the scene does with projects: opens, creates and saves them.
SceneDialogs {
    id: sceneProject

    function tell(type, text) {
        WebcamGlobal.appendMessage(Zum.FileMessage, type, text);
    }

    function openProject(path) {
        return MainWindow.openProject(path === undefined ? "" : path);
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

    // Selects from the current frame up to another one.
    function addToGroup(row) {
        FramesModel.addRangeToGroup(FramesModel.currentIndex, row);
    }

    function addLastProject() {
        MainWindow.addLastProject();
    }
}
