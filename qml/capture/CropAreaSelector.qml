import QtQuick

// Draws the frame of the film on the live picture: a rectangle around its middle with one corner at the pointer.
Item {
    id: selector

    readonly property var device: MainWindow.capturingDeviceObject
    readonly property bool on: appWindow.choosingCropArea && WebcamGlobal.connected && device !== null
    property size drawn: Qt.size(0, 0)
    readonly property int smallest: 8

    // In pixels of the camera's picture, in the multiples that films are made of.
    function areaTo(x, y) {
        const at = device.mapFromItem(selector, x, y);
        return Qt.size(side(at.x, device.width, device.coordSystemWidth),
                       side(at.y, device.height, device.coordSystemHeight));
    }

    function side(at, shown, real) {
        const half = Math.abs(at - shown / 2) * real / Math.max(1, shown);
        const most = Math.floor(real / smallest) * smallest;
        return Math.max(smallest, Math.min(most, Math.round(2 * half / smallest) * smallest));
    }

    function take() {
        if (drawn.width >= smallest && drawn.height >= smallest) {
            WebcamGlobal.cropAreaW = drawn.width;
            WebcamGlobal.cropAreaH = drawn.height;
            WebcamGlobal.cropAreaOn = true;
        }
        leave();
    }

    function leave() {
        drawn = Qt.size(0, 0);
        appWindow.choosingCropArea = false;
    }

    visible: on

    Connections {
        target: WebcamGlobal
        enabled: selector.on

        function onGlobalDismiss() {
            selector.leave();
        }
    }

    Rectangle {
        id: frame

        readonly property point middle: selector.on ? selector.mapFromItem(selector.device, selector.device.width / 2,
                                                                           selector.device.height / 2) : Qt.point(0, 0)
        property real halfWidth: 0
        property real halfHeight: 0

        x: Math.round(middle.x - halfWidth)
        y: Math.round(middle.y - halfHeight)
        width: Math.round(2 * halfWidth)
        height: Math.round(2 * halfHeight)
        visible: selector.drawn.width > 0
        color: "transparent"
        border.width: lineWidth
        border.color: Theme.active

        TextLabel {
            objectName: "drawnSize"
            anchors.centerIn: parent
            text: selector.drawn.width + "x" + selector.drawn.height
            color: Theme.active
        }
    }

    MouseArea {
        objectName: "cropAreaMouse"
        anchors.fill: parent
        cursorShape: Qt.CrossCursor
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onPositionChanged: mouse => {
            if (!(mouse.buttons & Qt.LeftButton))
                return;
            selector.drawn = selector.areaTo(mouse.x, mouse.y);
            frame.halfWidth = Math.abs(mouse.x - frame.middle.x);
            frame.halfHeight = Math.abs(mouse.y - frame.middle.y);
        }
        onPressed: mouse => {
            if (mouse.button === Qt.RightButton)
                selector.leave();
        }
        onReleased: mouse => {
            if (mouse.button === Qt.LeftButton)
                selector.take();
        }
    }
}
