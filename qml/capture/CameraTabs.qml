import QtQuick

// What a press of the button makes: frames, their names, and shooting by the clock. While that runs, its tab is
// the only one.
Pane {
    id: cameraTabs

    property int current: 0
    property bool withButton: true
    readonly property int autoCaptureTab: 2
    readonly property bool blocked: WebcamGlobal.zeitRafferRunning
    readonly property int shown: blocked ? autoCaptureTab : current
    readonly property var entries: [
        { text: qsTr("Capture"), toolTip: qsTr("Capture frames one by one") },
        { text: qsTr("Prefix"), toolTip: qsTr("Names of the captured files") },
        { text: qsTr("Auto Capture"), toolTip: qsTr("Time-lapse") }
    ]

    Flow {
        width: parent.width
        spacing: 1
        Accessible.role: Accessible.PageTabList
        Accessible.name: qsTr("Ways to capture")

        Repeater {
            model: cameraTabs.entries
            delegate: TabButton {
                required property int index
                required property var modelData

                objectName: "cameraTab" + index
                width: Math.min(implicitWidth, cameraTabs.contentWidth)
                text: modelData.text
                toolTip: modelData.toolTip
                toggled: cameraTabs.shown === index
                active: !cameraTabs.blocked || index === cameraTabs.autoCaptureTab
                onClicked: cameraTabs.current = index
            }
        }
    }

    CapmodesTab {
        width: parent.width
        withButton: cameraTabs.withButton
        visible: cameraTabs.shown === 0
    }

    PrefixTab {
        width: parent.width
        visible: cameraTabs.shown === 1
    }

    ZeitRaffer {
        width: parent.width
        visible: cameraTabs.shown === cameraTabs.autoCaptureTab
    }
}
