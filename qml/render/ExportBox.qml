import QtQuick
import Zum 1.0

// The movie: what it is called, its format, its effect and its size.
Pane {
    id: box

    required property var scene
    readonly property bool resized: WebcamGlobal.videoExportPolicy === Zum.ExportPolicyCroppedAndResized

    title: qsTr("Video")

    function setFileName(text) {
        const name = MainWindow.cleanStr(text, true);
        if (name !== "")
            WebcamGlobal.renderFileName = name;
    }

    function setFormat(format) {
        WebcamGlobal.renderFormatNameStr = format;
        MainWindow.addSetting("renderVideoFormat", format);
    }

    function setQuality(index) {
        WebcamGlobal.renderQmax = index;
        MainWindow.addSetting("renderQmax", index);
    }

    function setWidth(value) {
        WebcamGlobal.exportSizeW = value;
        WebcamGlobal.updateExportSizes();
    }

    ExportHeading {
        text: qsTr("Output")
    }

    TextPropertyInput {
        objectName: "renderFileName"
        width: parent.width
        placeholder: qsTr("File Name")
        toolTip: qsTr("Name of the movie's file; a movie of the same name is replaced")
        text: WebcamGlobal.renderFileName
        onEdited: text => box.setFileName(text)
    }

    ExportHeading {
        text: qsTr("Format & Quality")
    }

    VideoFormatsButtonsRow {
        objectName: "renderFormat"
        width: parent.width
        format: WebcamGlobal.renderFormatNameStr
        onFormatChosen: format => box.setFormat(format)
    }

    ChoiceRow {
        objectName: "renderQuality"
        width: parent.width
        visible: WebcamGlobal.renderFormatNameStr !== VideoFormatWEBP
        toolTip: qsTr("Quality of the movie; a better one makes a larger file")
        model: [qsTr("Low"), qsTr("Medium"), qsTr("High"), qsTr("Maximum")]
        currentIndex: WebcamGlobal.renderQmax
        onChosen: index => box.setQuality(index)
    }

    ExportHeading {
        text: qsTr("Video Effects")
    }

    Item {
        width: parent.width
        height: Math.max(effectName.implicitHeight, effectButtons.height)

        CurrentFilterName {
            id: effectName

            objectName: "effectName"
            anchors.left: parent.left
            anchors.right: effectButtons.left
            anchors.rightMargin: Theme.spacing
            anchors.verticalCenter: parent.verticalCenter
        }

        Row {
            id: effectButtons

            anchors.right: parent.right
            spacing: 1

            IconButton {
                objectName: "openEffects"
                icon: "svgicons/edit.svg"
                toolTip: qsTr("Choose a video effect and its values")
                onClicked: box.scene.postProcessFiltersBox()
            }

            RemoveVideoEffectBtn {
                objectName: "removeEffect"
            }
        }
    }

    ExportHeading {
        text: qsTr("Size & Options")
    }

    ExportPolicyDialog_Video {
        objectName: "exportPolicy"
        width: Math.min(implicitWidth, parent.width)
    }

    ExportSize {
        objectName: "exportSize"
        width: parent.width
        visible: box.resized
        exportWidth: WebcamGlobal.exportSizeW
        exportHeight: WebcamGlobal.exportSizeH
        cropWidth: WebcamGlobal.cropAreaW
        cropHeight: WebcamGlobal.cropAreaH
        onWidthEdited: value => box.setWidth(value)
    }

    PropertiesCheck {
        objectName: "renderTimecode"
        width: Math.min(implicitWidth, parent.width)
        caption: qsTr("Timecode")
        toolTip: qsTr("Write scene, layer, frame and time into the picture")
        checked: WebcamGlobal.renderTimecode
        onSwitched: checked => WebcamGlobal.renderTimecode = checked
    }

    Connections {
        target: WebcamGlobal

        function onCropAreaWChanged() {
            WebcamGlobal.updateExportSizes();
        }

        function onCropAreaHChanged() {
            WebcamGlobal.updateExportSizes();
        }
    }
}
