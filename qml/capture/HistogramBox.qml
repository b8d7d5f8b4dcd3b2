import QtQuick

// How bright and how colourful the live picture is: how much of it each value from dark to light takes.
Pane {
    id: histogramBox

    readonly property var device: MainWindow.capturingDeviceObject

    readonly property var channels: [
        { key: "histogramYChannelOn", text: "Y", name: qsTr("Brightness"), colour: "#b0b0b0" },
        { key: "histogramRChannelOn", text: "R", name: qsTr("Red"), colour: "#e0574a" },
        { key: "histogramGChannelOn", text: "G", name: qsTr("Green"), colour: "#4fae4a" },
        { key: "histogramBChannelOn", text: "B", name: qsTr("Blue"), colour: "#4a7fe0" }
    ]
    property var shown: channels.map(channel => asBool(MainWindow.getSetting(channel.key, true)))

    // The store gives texts back for what was a truth value.
    function asBool(value) {
        return value === true || value === "true";
    }

    function switchChannel(index) {
        const changed = shown.slice();
        changed[index] = !changed[index];
        shown = changed;
        MainWindow.addSetting(channels[index].key, changed[index]);
    }

    function dataOf(index) {
        if (!device || !shown[index])
            return [];
        return [device.histogramDataY, device.histogramDataR, device.histogramDataG, device.histogramDataB][index];
    }

    title: qsTr("Histogram")

    Flow {
        width: parent.width
        spacing: Theme.spacing

        CheckButton {
            objectName: "histogramOn"
            text: qsTr("Live")
            toolTip: qsTr("Measure the live view, once a second")
            checked: WebcamGlobal.histogramOn
            onSwitched: on => WebcamGlobal.histogramOn = on
        }

        Repeater {
            model: histogramBox.channels
            delegate: CheckButton {
                required property int index
                required property var modelData

                objectName: modelData.key
                text: modelData.text
                label: modelData.name
                toolTip: modelData.name
                active: WebcamGlobal.histogramOn
                checked: histogramBox.shown[index]
                onSwitched: histogramBox.switchChannel(index)
            }
        }
    }

    Rectangle {
        width: parent.width
        height: visible ? DefFontSizeNormal_x6 : 0
        visible: WebcamGlobal.histogramOn && WebcamGlobal.connected
        color: Theme.well
        clip: true
        Accessible.role: Accessible.Graphic
        Accessible.name: histogramBox.title

        Repeater {
            model: histogramBox.channels
            delegate: HistogramCurve {
                required property int index
                required property var modelData

                objectName: "curve" + modelData.text
                anchors.fill: parent
                colour: modelData.colour
                values: histogramBox.dataOf(index)
            }
        }
    }
}
