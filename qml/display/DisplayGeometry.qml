import QtQuick

// The size of the picture that the view of the Capture tab works on. A connected device gives its own; without one
// it is the film's frame, or larger where the frames are: one pixel of a frame stays one unit of the view, and no
// frame is cut. It grows with the frames that come to sight, so that the view does not jump between them.
Item {
    id: geometry

    // The room on screen.
    property real roomWidth: 0
    property real roomHeight: 0
    property size largest: Qt.size(0, 0)
    readonly property bool ownPicture: !WebcamGlobal.connected && MainWindow.projectLoaded
    readonly property size picture: Qt.size(Math.max(WebcamGlobal.cropAreaW, largest.width),
                                            Math.max(WebcamGlobal.cropAreaH, largest.height))

    function meet(width, height) {
        if (WebcamGlobal.connected || width < 2 || height < 2)
            return;
        if (width > largest.width || height > largest.height)
            largest = Qt.size(Math.max(width, largest.width), Math.max(height, largest.height));
    }

    // At once: there is no live picture to keep in step with.
    function apply() {
        if (!ownPicture || picture.width < 1 || picture.height < 1)
            return;
        WebcamGlobal.width = picture.width;
        WebcamGlobal.height = picture.height;
        WebcamGlobal.coordSystemWidth = picture.width;
        WebcamGlobal.coordSystemHeight = picture.height;
        if (roomWidth < 1 || roomHeight < 1)
            return;
        const fit = Math.min(roomWidth / picture.width, roomHeight / picture.height);
        const scale = WebcamGlobal.resize ? fit : Math.min(fit, 1);
        WebcamGlobal.displayScale = scale;
        WebcamGlobal.coordSystemScale = Math.fround(Math.round(scale * 10000) / 10000);
    }

    // Where the film's frame lies in the picture. Not worth a project that wants to be saved, so it is only written
    // together with something that is.
    function placeFrame() {
        if (!MainWindow.projectLoaded || !WebcamGlobal.projectChanged)
            return;
        WebcamGlobal.cropAreaX = Math.round((WebcamGlobal.coordSystemWidth - WebcamGlobal.cropAreaW) / 2);
        WebcamGlobal.cropAreaY = Math.round((WebcamGlobal.coordSystemHeight - WebcamGlobal.cropAreaH) / 2);
    }

    function letGo() {
        largest = Qt.size(0, 0);
        if (WebcamGlobal.connected)
            return;
        WebcamGlobal.width = 0;
        WebcamGlobal.height = 0;
        WebcamGlobal.coordSystemWidth = 100;
        WebcamGlobal.coordSystemHeight = 100;
        WebcamGlobal.displayScale = 1;
        WebcamGlobal.coordSystemScale = 1;
    }

    visible: false
    onPictureChanged: apply()
    onOwnPictureChanged: {
        if (ownPicture)
            apply();
        else
            letGo();
    }
    // A window that is being drawn larger asks for every size on its way.
    onRoomWidthChanged: resized.restart()
    onRoomHeightChanged: resized.restart()
    Component.onCompleted: apply()
    Component.onDestruction: letGo()

    Binding {
        target: WebcamGlobal
        property: "scaledWidth"
        value: Math.round(WebcamGlobal.width * WebcamGlobal.displayScale)
    }

    Binding {
        target: WebcamGlobal
        property: "scaledHeight"
        value: Math.round(WebcamGlobal.height * WebcamGlobal.displayScale)
    }

    Connections {
        target: WebcamGlobal

        function onCropAreaWChanged() {
            Qt.callLater(geometry.placeFrame);
        }

        function onCropAreaHChanged() {
            Qt.callLater(geometry.placeFrame);
        }

        function onCoordSystemWidthChanged() {
            Qt.callLater(geometry.placeFrame);
        }

        function onCoordSystemHeightChanged() {
            Qt.callLater(geometry.placeFrame);
        }

        function onResizeChanged() {
            geometry.apply();
        }

        // Choosing another device lets go of the last one's picture.
        function onConnectedCamIndexChanged() {
            geometry.apply();
        }
    }

    Timer {
        id: resized

        interval: 100
        onTriggered: geometry.apply()
    }
}
