import QtQuick
import Zum 1.0

// Says in a line what a render would make, and in another what an export of pictures would.
QtObject {
    readonly property string ifEffects: WebcamGlobal.applyPostProcessEffects ? qsTr(", effects") : ""
    readonly property string ifCropped: policyWord(WebcamGlobal.videoExportPolicy)
    readonly property string ifFilters: WebcamGlobal.postProcessing === Zum.NonRealtimeProcessing
                                        ? qsTr(", filters") : ""
    readonly property string ifTimecode: WebcamGlobal.renderTimecode ? qsTr(", timecode") : ""

    readonly property size cropSize: Qt.size(WebcamGlobal.cropAreaW, WebcamGlobal.cropAreaH)
    readonly property bool resized: WebcamGlobal.videoExportPolicy === Zum.ExportPolicyCroppedAndResized
    readonly property size videoSize: resized ? WebcamGlobal.exportSize : cropSize
    readonly property size sequenceSize: resized ? WebcamGlobal.sequenceExportSize : cropSize

    readonly property string videoExportSettsStr: sizeText(videoSize) + ", " + ifCropped + ifFilters + ifTimecode
                                                  + ifEffects
    readonly property string sequeExportSettsStr: sizeText(sequenceSize) + ", " + ifCropped + ifFilters + ifTimecode
    readonly property string videoExpStr: WebcamGlobal.renderFormatNameStr.toUpperCase() + " " + videoExportSettsStr
    readonly property string sequeExpStr: pictureFormat(WebcamGlobal.exportPicFormat) + " " + sequeExportSettsStr

    onVideoExpStrChanged: WebcamGlobal.videoRenderSettsStr = videoExpStr

    function sizeText(size) {
        return qsTr("%1x%2").arg(size.width).arg(size.height);
    }

    function policyWord(policy) {
        switch (policy) {
        case Zum.ExportPolicyCropped:
            return qsTr("crop");
        case Zum.ExportPolicyCroppedAndResized:
            return qsTr("crop & scale");
        default:
            return qsTr("scale");
        }
    }

    function pictureFormat(format) {
        switch (format) {
        case Zum.ExportJPG:
            return "JPG";
        case Zum.ExportTIFF:
            return "TIFF";
        case Zum.ExportWEBP:
            return "WEBP";
        case Zum.ExportBMP:
            return "BMP";
        default:
            return "PNG";
        }
    }
}
