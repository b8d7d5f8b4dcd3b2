import QtQuick
import Zum 1.0

// The frames side by side. Only those in sight are made.
Item {
    id: strip

    required property var timeline
    readonly property int emptyKind: !MainWindow.projectLoaded ? 0 : FramesModel.framesCount === 0 ? 1 : 2

    clip: true

    ListView {
        id: view

        anchors.fill: parent
        anchors.bottomMargin: scroll.height
        orientation: ListView.Horizontal
        boundsBehavior: Flickable.StopAtBounds
        model: FramesModel
        currentIndex: FramesModel.currentIndex
        highlightFollowsCurrentItem: false
        cacheBuffer: width
        reuseItems: true
        interactive: false
        delegate: TimelineFrame {
            height: view.height
        }
        onCurrentIndexChanged: positionViewAtIndex(currentIndex, ListView.Contain)
    }

    Scrollbar {
        id: scroll

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        flickable: view
        vertical: false
    }

    TextLabel {
        anchors.centerIn: parent
        width: parent.width - DefFontSizeNormal_x4
        visible: strip.emptyKind < 2
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        dim: true
        text: strip.emptyKind === 0
              ? qsTr("No project. Create or load project to capture, add, remove or modify frames")
              : qsTr("No Frames")
    }

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: scroll.top
        // Above the strip's own mouse, which would take the click for one on the frame below.
        z: 1
        visible: FramesModel.selectedCount > 0
        width: hint.implicitWidth + DefFontSizeNormal_x2
        height: DefFontSizeNormal_Pltr + DefFontSizeNano
        radius: globalCorner
        color: GlobalDarkestColor

        TextLabel {
            id: hint

            anchors.centerIn: parent
            small: true
            text: qsTr("Click here or press Esc to cancel selection")
        }

        MouseArea {
            anchors.fill: parent
            onClicked: strip.timeline.dismiss()
        }
    }

    MouseArea {
        id: mouse

        property int pressedRow: -1
        property real pressedContentX: 0
        property real pressedX: 0
        readonly property int rowUnder: view.indexAt(mouseX + view.contentX, 1)

        anchors.fill: view
        acceptedButtons: Qt.LeftButton | Qt.MiddleButton
        cursorShape: pressedButtons & Qt.MiddleButton ? Qt.ClosedHandCursor : Qt.ArrowCursor
        onPressed: event => {
            pressedRow = view.indexAt(event.x + view.contentX, 1);
            pressedContentX = view.contentX;
            pressedX = event.x;
        }
        onPositionChanged: event => {
            if (pressedButtons & Qt.MiddleButton)
                strip.scrollTo(pressedContentX - (event.x - pressedX));
        }
        onReleased: event => {
            if (event.button !== Qt.LeftButton || pressedRow < 0)
                return;
            const row = view.indexAt(event.x + view.contentX, 1);
            if (row === pressedRow)
                strip.pick(row, event.modifiers);
            else if (row >= 0)
                strip.drag(pressedRow, row, event.modifiers);
        }
    }

    // The span that a drag would select.
    Rectangle {
        visible: mouse.pressed && mouse.pressedButtons === Qt.LeftButton && mouse.rowUnder >= 0
                 && mouse.rowUnder !== mouse.pressedRow
        x: Math.min(mouse.pressedX, mouse.mouseX)
        width: Math.abs(mouse.mouseX - mouse.pressedX)
        height: view.height
        color: activeColor
        opacity: 0.2
    }

    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => strip.scrollTo(view.contentX - Math.sign(event.angleDelta.y + event.angleDelta.x)
                                                         * (MainWindow.scaledThumbSize.width + DefFontSizeMicro))
    }

    function scrollTo(x) {
        view.contentX = Math.max(0, Math.min(view.contentWidth - view.width, x));
    }

    // From one row to another: selects the rows between, or with Alt moves frames, with Ctrl copies of them.
    function drag(from, to, modifiers) {
        if (WebcamGlobal.timelineInteractive) {
            FramesModel.addRangeToGroup(from, to);
            return;
        }
        const copies = modifiers & Qt.ControlModifier;
        if (FramesModel.selectedCount > 0 && FramesModel.get(from, false).ingroup) {
            FramesModel.currentIndex = to;
            if (copies)
                timeline.dublicateAndMoveFrames();
            else
                timeline.moveFrames();
        } else if (copies) {
            FramesModel.duplicateSingleFrame(from, Zum.CaptureModeAppend, to, true);
        } else {
            FramesModel.moveSingleFrame(from, to, true);
        }
    }

    function pick(row, modifiers) {
        if (modifiers & Qt.ShiftModifier) {
            FramesModel.addRangeToGroup(FramesModel.currentIndex, row);
        } else if (modifiers & Qt.ControlModifier) {
            FramesModel.switchSelectionOnSingleFrame(row);
        } else {
            WebcamGlobal.globalDismiss();
            FramesModel.currentIndex = row;
        }
    }
}
