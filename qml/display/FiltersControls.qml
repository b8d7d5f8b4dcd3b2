import QtQuick
import Zum 1.0

// The filters of the picture: whether they are shown, and each one's value. A filter at its default leaves no
// trace in the settings. Switching the preview off and on shows the picture before and after.
Column {
    id: filters

    // Without the key colour and the background.
    property bool brief: false
    readonly property var settings: WebcamGlobal.postProcessSettings
    readonly property bool previewed: WebcamGlobal.postProcessing === Zum.NonRealtimeProcessing

    spacing: Theme.padding

    function numberOf(key, defaultValue) {
        const number = Number(settings[key] ?? defaultValue);
        return isNaN(number) ? defaultValue : number;
    }

    function setNumber(key, value, defaultValue) {
        if (value === defaultValue)
            WebcamGlobal.removePostProcessSetting(key);
        else
            WebcamGlobal.setPostProcessSetting(key, value);
    }

    function setPreviewed(wanted) {
        WebcamGlobal.eyedropperOn = false;
        WebcamGlobal.chromakeyOn = false;
        WebcamGlobal.postProcessing = wanted ? Zum.NonRealtimeProcessing : Zum.NoProcessing;
    }

    PropertiesCheck {
        objectName: "filtersPreview"
        width: Math.min(implicitWidth, parent.width)
        caption: qsTr("Filters preview")
        toolTip: qsTr("Show pictures with the filters, or as they are")
        checked: filters.previewed
        onSwitched: checked => filters.setPreviewed(checked)
    }

    TextLabel {
        objectName: "processing"
        width: parent.width
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        color: NoteColor
        visible: filters.previewed && WebcamGlobal.cachingRightNow
        text: qsTr("Processing, please wait...")
    }

    PostProcessValue {
        objectName: "contrast"
        width: parent.width
        text: qsTr("Adjust Contrast")
        toolTip: qsTr("Even out light and dark parts; 0 is off")
        maximum: 40
        value: filters.numberOf("contrast", 0)
        onChosen: value => filters.setNumber("contrast", value, 0)
    }

    PostProcessValue {
        objectName: "denoise"
        width: parent.width
        text: qsTr("Remove Noise")
        toolTip: qsTr("Smooth the grain of the picture and keep its edges; 0 is off")
        value: filters.numberOf("denoise", 0)
        onChosen: value => filters.setNumber("denoise", value, 0)
    }

    PostProcessValue {
        objectName: "saturation"
        width: parent.width
        text: qsTr("Adjust Saturation")
        toolTip: qsTr("From gray at 0 to twice the strength of colors at 100; 50 leaves them alone")
        defaultValue: 50
        value: filters.numberOf("saturation", 50)
        onChosen: value => filters.setNumber("saturation", value, 50)
    }

    PostProcessChromaControl {
        width: parent.width
        visible: !filters.brief
    }

    PostProcessBackground {
        width: parent.width
        visible: !filters.brief
    }
}
