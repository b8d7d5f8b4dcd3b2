import QtQuick
import Zum 1.0

// One frame of the strip: its thumbnail, its number and the marks of its state.
Item {
    id: frame

    required property int index
    required property var model
    readonly property bool current: FramesModel.currentIndex === index
    readonly property bool isHold: model.static >= 0
    readonly property bool missing: (model.capfullmiss && model.capTumb.length > 0)
                                    || (model.reffullmiss && model.refTumb.length > 0)

    readonly property string toolTip: missing ? missingText() : ""

    function missingText() {
        let text = "";
        if (model.capfullmiss && model.capTumb.length > 0)
            text += qsTr("Captured image is missing ");
        if (model.reffullmiss && model.refTumb.length > 0)
            text += qsTr("Reference image is missing");
        return text;
    }

    width: MainWindow.scaledThumbSize.width + DefFontSizeMicro

    Rectangle {
        id: box

        anchors.fill: parent
        anchors.rightMargin: frame.model.static === 0 || frame.model.static === 1 ? 0 : 2
        color: frame.current && FramesModel.goingToDeleteCurrentFrame ? activeColor
               : frame.model.ingroup ? "#75797E" : "#4F4F4F"
        border.width: frame.current ? DefFontSizeNano : 0
        border.color: activeColor
    }

    Rectangle {
        visible: frame.isHold
        anchors.left: box.left
        anchors.right: box.right
        anchors.bottom: box.bottom
        height: frame.model.static === 0 ? box.height : DefFontSizeNano
        z: frame.model.static === 0 ? -1 : 1
        color: staticFrameColor
    }

    Rectangle {
        visible: frame.model.static === 0
        anchors.fill: box
        color: staticFrameColor
        opacity: 0.6
    }

    Column {
        anchors.fill: box
        anchors.margins: DefFontSizeNano
        spacing: DefFontSizePico

        Item {
            id: infoLine

            width: parent.width
            height: DefFontSizeNormal

            Rectangle {
                visible: frame.model.hidden
                width: DefFontSizeMicro
                height: width
                anchors.verticalCenter: parent.verticalCenter
                color: "#93e308"
            }

            TextLabel {
                visible: frame.model.phase !== DefaultPhase
                anchors.left: parent.left
                small: true
                text: frame.model.phase
            }

            Rectangle {
                anchors.right: parent.right
                width: number.implicitWidth + DefFontSizeNano
                height: parent.height
                color: frame.model.ingroup ? "#C00202" : "transparent"

                TextLabel {
                    id: number

                    anchors.centerIn: parent
                    small: true
                    text: frame.index + FramesModel.startIndex
                }
            }
        }

        Repeater {
            model: FramesModel.doubleDecker ? [Zum.CapTumb, Zum.RefTumb] : [Zum.CapTumb]
            delegate: Image {
                required property int modelData
                readonly property string name: modelData === Zum.CapTumb ? frame.model.capTumb : frame.model.refTumb

                width: Math.min(parent.width, MainWindow.scaledThumbSize.width)
                height: (frame.height - infoLine.height - DefFontSizeNormal) / (FramesModel.doubleDecker ? 2 : 1)
                opacity: frame.model.hidden ? 0.25 : 1
                fillMode: Image.PreserveAspectFit
                asynchronous: true
                cache: true
                mirror: frame.model.mirrored
                sourceSize: Qt.size(MainWindow.scaledThumbSize.width, 0)
                source: MainWindow.buildImagePath(modelData, name)
            }
        }
    }

    HoverTip {}
}
