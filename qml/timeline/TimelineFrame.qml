import QtQuick
import Zum 1.0

// One frame of the strip: its thumbnails, its number and the marks of its state.
Item {
    id: frame

    required property int index
    required property var model
    property int thumbWidth: MainWindow.scaledThumbSize.width
    property int unit: DefFontSizeNormal
    readonly property int line: Math.max(2, Math.floor(unit / 3))
    readonly property int pico: Math.max(2, Math.floor(unit / 4))
    readonly property int letters: Math.min(DefFontSizeSmaler, unit)
    readonly property bool current: FramesModel.currentIndex === index
    readonly property bool aboutToGo: current && FramesModel.goingToDeleteCurrentFrame
    // -1 no hold, 0 the first frame of one, 1 inside, 2 the last.
    readonly property int hold: model.static
    readonly property bool capturedMissing: model.capfullmiss && model.capTumb.length > 0
    readonly property bool referenceMissing: model.reffullmiss && model.refTumb.length > 0
    readonly property string toolTip: (capturedMissing ? qsTr("Captured image is missing ") : "")
                                      + (referenceMissing ? qsTr("Reference image is missing") : "")
    // Between the frames; those of a hold touch.
    readonly property int gap: hold === 0 || hold === 1 ? 0 : pico
    readonly property color frameLine: specialColor.a > 0 ? specialColor : activeColor

    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("Frame %1").arg(index + FramesModel.startIndex)
    Accessible.description: toolTip
    Accessible.selected: model.ingroup

    Rectangle {
        id: box

        width: frame.width - frame.gap
        height: frame.height
        color: frame.aboutToGo ? activeColor : frame.model.ingroup ? "#75797E" : "#4F4F4F"
    }

    Rectangle {
        id: band

        readonly property bool whole: frame.hold === 0

        visible: frame.hold >= 0
        y: whole ? 0 : box.height - height
        width: box.width
        height: whole ? box.height : frame.line
        color: staticFrameColor
        opacity: whole && (frame.aboutToGo || frame.model.ingroup) ? 0.5 : 1
    }

    Item {
        id: infoLine

        x: frame.line
        y: frame.line
        width: box.width - frame.line - Math.max(0, frame.line - frame.width + box.width)
        height: frame.unit

        Rectangle {
            id: hiddenMark

            visible: frame.model.hidden
            width: Math.floor(frame.unit / 2)
            height: width
            anchors.verticalCenter: parent.verticalCenter
            color: "#93e308"
        }

        TextLabel {
            visible: frame.model.phase !== DefaultPhase
            anchors.left: hiddenMark.visible ? hiddenMark.right : parent.left
            anchors.leftMargin: hiddenMark.visible ? frame.pico : 0
            height: parent.height
            font.pixelSize: frame.letters
            text: frame.model.phase
            Accessible.ignored: true
        }

        Rectangle {
            anchors.right: parent.right
            width: Math.ceil(number.implicitWidth) + 2 * frame.pico
            height: parent.height
            color: frame.model.ingroup ? "#C00202" : frame.current ? "#282828" : "transparent"

            TextLabel {
                id: number

                anchors.centerIn: parent
                font.pixelSize: frame.letters
                text: frame.index + FramesModel.startIndex
                Accessible.ignored: true
            }
        }
    }

    TimelineThumb {
        id: captured

        x: Math.round((box.width - width) / 2)
        y: infoLine.y + infoLine.height + frame.pico
        width: Math.min(box.width, frame.thumbWidth)
        height: FramesModel.doubleDecker ? Math.floor((frame.height - y - frame.line - frame.pico) / 2)
                                         : frame.height - y - frame.line - frame.pico
        role: Zum.CapTumb
        name: frame.model.capTumb
        mirrored: frame.model.mirrored
        hidden: frame.model.hidden
        missing: frame.capturedMissing
    }

    Loader {
        x: captured.x
        y: captured.y + captured.height
        width: captured.width
        height: captured.height
        active: FramesModel.doubleDecker
        sourceComponent: TimelineThumb {
            role: Zum.RefTumb
            name: frame.model.refTumb
            mirrored: frame.model.mirrored
            hidden: frame.model.hidden
            missing: frame.referenceMissing
        }
    }

    TimelineMarkers {
        width: frame.width
        height: frame.line + frame.unit
        row: frame.index
    }

    Rectangle {
        visible: frame.current
        width: box.width
        height: box.height
        color: "transparent"
        border.width: Math.min(DefFontSizeNano, frame.unit / 3)
        border.color: frame.frameLine
    }

    HoverTip {}
}
