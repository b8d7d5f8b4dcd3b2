import QtQuick

// How large the reference frame is against the captured one.
SliderNew {
    width: parent.width
    label: qsTr("Size")
    toolTip: qsTr("Size of the reference frame, in per cent")
    minimum: referenceImageScaleMin
    maximum: referenceImageScaleMax
    defaultValue: referenceImageScaleDef
    suffix: "%"
    value: WebcamGlobal.referenceImageScale
    onMoved: value => WebcamGlobal.referenceImageScale = value
}
