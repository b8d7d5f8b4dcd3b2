import QtQuick

// A thumbnail of the strip. Read off the main thread at the size it is shown at.
Image {
    id: thumb

    // Zum.CapTumb or Zum.RefTumb.
    property int role: 0
    property string name: ""
    property bool mirrored: false
    property bool hidden: false
    property bool missing: false

    opacity: hidden ? 0.25 : 1
    fillMode: Image.PreserveAspectFit
    asynchronous: true
    cache: true
    mirror: mirrored
    // The same at every scale, so that scaling reads nothing again.
    sourceSize: Qt.size(MainWindow.scaledThumbSize.width, 0)
    source: MainWindow.buildImagePath(role, name)

    Icon {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        icon: thumb.missing ? "svgicons/file-missing.svg" : ""
        size: Math.min(Theme.smallIconSize, thumb.height)
    }
}
