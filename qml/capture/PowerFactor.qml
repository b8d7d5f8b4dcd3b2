import QtQuick

// How often the camera is asked for a picture. Any pause that is none of the three counts as the shortest.
FieldRow {
    id: powerFactor

    readonly property var pauses: [300, 90, 20]

    text: qsTr("FPS")

    ChoiceRow {
        objectName: "powerFactor"
        width: Math.min(implicitWidth, parent.width)
        label: powerFactor.text
        toolTip: qsTr("Set FPS to Min to reduce CPU usage")
        model: [qsTr("Min"), qsTr("Middle"), qsTr("Max")]
        currentIndex: powerFactor.pauses.includes(WebcamGlobal.powerFactor)
                      ? powerFactor.pauses.indexOf(WebcamGlobal.powerFactor) : 2
        onChosen: index => WebcamGlobal.powerFactor = powerFactor.pauses[index]
    }
}
