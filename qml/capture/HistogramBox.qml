import QtQuick
import Histogram 1.0

// How bright and how colourful the live picture is: how much of it each value from dark to light takes.
Pane {
    id: histogramBox

    readonly property var device: MainWindow.capturingDeviceObject

    readonly property var channels: [
        { key: "histogramYChannelOn", text: "Y", name: qsTr("Brightness"), colour: "#99b0b0b0" },
        { key: "histogramRChannelOn", text: "R", name: qsTr("Red"), colour: "#99e0574a" },
        { key: "histogramGChannelOn", text: "G", name: qsTr("Green"), colour: "#994fae4a" },
        { key: "histogramBChannelOn", text: "B", name: qsTr("Blue"), colour: "#994a7fe0" }
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
        if (!device)
            return [];
        const all = [device.histogramDataY, device.histogramDataR, device.histogramDataG, device.histogramDataB];
        return Array.from(all[index], Number);
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
            delegate: Histogram {
                required property int index
                required property var modelData
                readonly property var counts: histogramBox.dataOf(index)

                objectName: "curve" + modelData.text
                anchors.fill: parent
                // The tallest channel stands at the back, where it hides no other.
                z: counts.length > 0 ? -counts[counts.length - 1] : 0
                running: histogramBox.shown[index]
                bodyColor: modelData.colour
                histogramData: counts
            }
        }
    }
}
