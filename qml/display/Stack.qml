import QtQuick
import Zum 1.0

// The onion skin: the frames before or after the current one, in one place, each at half the layer's opacity.
Item {
    id: stack

    property bool running: false
    readonly property bool wanted: running && WebcamGlobal.stackMode !== Zum.NoStack && FramesModel.framesCount > 0
    readonly property alias count: images.count
    property int loading: 0

    // The rows around the current one, that itself left out: nearer ones come later, to lie on top.
    function rowsOf(mode, current, depth, last) {
        const rows = [];
        if (mode === Zum.StackPast) {
            for (let row = Math.max(current - depth, 0); row <= current; ++row)
                rows.push(row);
        } else if (mode === Zum.StackFuture) {
            for (let row = current; row <= Math.min(current + depth, last); ++row)
                rows.unshift(row);
        }
        return rows.filter(row => row !== current);
    }

    function fill() {
        const rows = rowsOf(WebcamGlobal.stackMode, FramesModel.currentIndex, WebcamGlobal.stackDepth,
                            FramesModel.last());
        for (const row of rows) {
            const frame = FramesModel.get(row, true);
            if (frame.capFull !== "" && !frame.capfullmiss)
                images.append({ file: frame.capFull, flipped: frame.mirrored === true, row: row });
        }
    }

    // The live view rests while the pictures change hands.
    function regenerate() {
        if (!wanted) {
            images.clear();
            return;
        }
        const before = WebcamGlobal.paused;
        WebcamGlobal.paused = true;
        images.clear();
        fill();
        WebcamGlobal.paused = before;
    }

    function readyAgain() {
        const device = MainWindow.capturingDeviceObject;
        WebcamGlobal.ready = WebcamGlobal.connected && !(device && device.busy);
    }

    onWantedChanged: regenerate()
    onLoadingChanged: {
        if (loading > 0)
            WebcamGlobal.ready = false;
        else
            readyAgain();
    }
    Component.onCompleted: regenerate()

    Connections {
        target: FramesModel
        enabled: stack.wanted

        function onCurrentIndexChanged() {
            stack.regenerate();
        }

        function onTimelineChanged() {
            stack.regenerate();
        }
    }

    Connections {
        target: WebcamGlobal
        enabled: stack.wanted

        function onStackModeChanged() {
            stack.regenerate();
        }

        function onStackDepthChanged() {
            stack.regenerate();
        }
    }

    ListModel {
        id: images
    }

    Repeater {
        model: images

        // Fitted into the picture of the view, which is what the frame's pixels are at the view's scale.
        Image {
            id: image

            required property string file
            required property bool flipped
            required property int row
            readonly property bool busy: status === Image.Loading

            anchors.centerIn: parent
            width: stack.width
            height: stack.height
            sourceSize: Qt.size(stack.width, stack.height)
            asynchronous: true
            fillMode: Image.PreserveAspectFit
            source: MainWindow.buildImagePath(Zum.CapFull, file)
            mirror: flipped
            // The layer that it lies in is shown at opacityCaptured / 100.
            opacity: 0.5
            onBusyChanged: stack.loading += busy ? 1 : -1
            Component.onDestruction: {
                if (busy)
                    stack.loading -= 1;
            }
        }
    }
}
