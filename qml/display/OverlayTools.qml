import QtQuick

// Which helper lines stand over the picture.
Column {
    id: tools

    width: parent.width
    spacing: DefFontSizePico

    OverlayRow {
        text: qsTr("Frame border")
        toolTip: qsTr("The edge of the film's frame")
        checked: WebcamGlobal.cropAreaOn
        lineOpacity: WebcamGlobal.frameBorderOpacity
        onSwitched: checked => WebcamGlobal.cropAreaOn = checked
        onOpacityMoved: value => WebcamGlobal.frameBorderOpacity = value
    }

    OverlayRow {
        text: qsTr("Margins")
        toolTip: qsTr("Darkens what lies outside of the frame")
        checked: WebcamGlobal.marginsOn
        lineOpacity: WebcamGlobal.marginsOpacity
        onSwitched: checked => WebcamGlobal.marginsOn = checked
        onOpacityMoved: value => WebcamGlobal.marginsOpacity = value
    }

    OverlayRow {
        text: qsTr("Safe areas")
        toolTip: qsTr("Where action and titles are safe from the edges of a screen")
        checked: WebcamGlobal.safeAreaOn
        lineOpacity: WebcamGlobal.safeAreaOpacity
        onSwitched: checked => WebcamGlobal.safeAreaOn = checked
        onOpacityMoved: value => WebcamGlobal.safeAreaOpacity = value
    }

    OverlayRow {
        text: qsTr("Rule of thirds")
        toolTip: qsTr("Two lines in each direction that part the frame in thirds")
        checked: WebcamGlobal.ruleOfThirdsGridOn
        lineOpacity: WebcamGlobal.thirdsGridOpacity
        onSwitched: checked => WebcamGlobal.ruleOfThirdsGridOn = checked
        onOpacityMoved: value => WebcamGlobal.thirdsGridOpacity = value
    }

    OverlayRow {
        text: qsTr("Sight")
        toolTip: qsTr("A cross in the middle of the picture")
        checked: WebcamGlobal.crossOn
        lineOpacity: WebcamGlobal.sightOpacity
        onSwitched: checked => WebcamGlobal.crossOn = checked
        onOpacityMoved: value => WebcamGlobal.sightOpacity = value
    }

    CheckButton {
        x: DefFontSizeNormal
        width: parent.width - x
        active: WebcamGlobal.crossOn
        text: qsTr("As wide as the picture")
        toolTip: qsTr("The arms of the sight reach the edges")
        checked: WebcamGlobal.wideCross
        onSwitched: checked => WebcamGlobal.wideCross = checked
    }

    OverlayRow {
        text: qsTr("Grid")
        toolTip: qsTr("A grid with a line in the middle")
        checked: WebcamGlobal.gridOn
        lineOpacity: WebcamGlobal.gridOpacity
        onSwitched: checked => WebcamGlobal.gridOn = checked
        onOpacityMoved: value => WebcamGlobal.gridOpacity = value
    }

    SliderNew {
        x: DefFontSizeNormal
        width: parent.width - x
        active: WebcamGlobal.gridOn
        label: qsTr("Step")
        toolTip: qsTr("Width of a cell in pixels of the frame")
        minimum: 10
        maximum: 300
        defaultValue: 100
        value: WebcamGlobal.gridHStep
        onMoved: value => {
            WebcamGlobal.gridHStep = value;
            WebcamGlobal.gridVStep = value;
        }
    }

    OverlayRow {
        text: qsTr("Sizes and warnings")
        toolTip: qsTr("The frame's size at its edge, and a sign on pictures that are cut")
        hasOpacity: false
        checked: WebcamGlobal.techInfoOn
        onSwitched: checked => WebcamGlobal.techInfoOn = checked
    }
}
