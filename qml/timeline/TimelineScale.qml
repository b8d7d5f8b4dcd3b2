import QtQuick

// How large the frames of the strip are, in per cent of a thumbnail.
IconDropPanel {
    id: button

    required property var timeline
    readonly property int smallest: 30
    readonly property int whole: 100

    function setPercent(percent) {
        timeline.getCurrentMiddleFrame();
        timeline.contentScale = percent / whole;
        MainWindow.addSetting("timelinescale", percent);
    }

    icon: "svgicons/scale.svg"
    toolTip: qsTr("Size of the frames on the timeline")
    panelWidth: DefFontSizeNormal_x16

    SliderNew {
        width: parent.width
        value: Math.round(button.timeline.contentScale * button.whole)
        minimum: button.smallest
        maximum: button.whole
        step: 5
        defaultValue: button.whole
        suffix: " %"
        label: qsTr("Scale")
        toolTip: button.toolTip
        onMoved: value => button.setPercent(Math.round(value))
    }
}
