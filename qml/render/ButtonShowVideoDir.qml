import QtQuick

// Shows the folder of the project's movies, with the last one selected.
IconButton {
    icon: "svgicons/folder-open.svg"
    toolTip: qsTr("Show the folder of the movies")
    onClicked: MainWindow.showInGraphicalShell([WebcamGlobal.lastRenderedPath, MainWindow.videoDirPath]
        .find(path => path !== "" && MainWindow.fileExists(path)) ?? MainWindow.projDirPath)
}
