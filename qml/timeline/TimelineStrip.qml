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
        delegate: TimelineFrame {
            height: view.height
            onPicked: modifiers => strip.pick(index, modifiers)
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

    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => view.contentX = Math.max(0, Math.min(view.contentWidth - view.width,
            view.contentX - Math.sign(event.angleDelta.y + event.angleDelta.x) * MainWindow.scaledThumbSize.width))
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
