import QtQuick
import Histogram 1.0

// The histogram of a picture: its four channels over each other, the tallest at the back. Each list holds 256 shares
// and in the last place the largest of them.
Pane {
    id: pane

    property var histogramDataY: []
    property var histogramDataR: []
    property var histogramDataG: []
    property var histogramDataB: []
    // While false the channels are empty and what comes is not taken.
    property bool running: true
    // The share of the largest count that fills the height.
    property real maxCoeff: 1
    readonly property var channels: [
        { name: "Y", text: qsTr("Luminance"), color: "#99c8c8c8" },
        { name: "R", text: qsTr("Red"), color: "#99ff5544" },
        { name: "G", text: qsTr("Green"), color: "#9944dd55" },
        { name: "B", text: qsTr("Blue"), color: "#995588ff" }
    ]
    property var shownChannels: ({ Y: true, R: true, G: true, B: true })

    title: qsTr("Histogram")
    Component.onCompleted: pane.readSettings()

    // The store gives texts back for what was a truth value.
    function readSettings() {
        const shown = {};
        for (const channel of channels)
            shown[channel.name] = String(MainWindow.getSetting(settingOf(channel.name), true)) !== "false";
        pane.shownChannels = shown;
    }

    function settingOf(name) {
        return "histogram" + name + "ChannelOn";
    }

    function showChannel(name, wanted) {
        MainWindow.addSetting(settingOf(name), wanted);
        pane.shownChannels = Object.assign({}, shownChannels, { [name]: wanted });
    }

    Rectangle {
        width: parent.width
        height: DefFontSizeNormal_x8
        radius: Theme.corner
        color: Theme.well
        border.width: 1
        border.color: Theme.line
        Accessible.role: Accessible.Graphic
        Accessible.name: pane.title

        Repeater {
            model: pane.channels
            delegate: Histogram {
                required property var modelData
                readonly property var values: pane["histogramData" + modelData.name] ?? []

                objectName: "histogram" + modelData.name
                anchors.fill: parent
                anchors.margins: 1
                z: values.length > 256 ? 1 - values[256] : 1
                visible: pane.shownChannels[modelData.name]
                running: pane.running
                histogramData: running ? values : []
                bodyColor: modelData.color
                maxCoeff: pane.maxCoeff
            }
        }
    }

    Flow {
        width: parent.width
        spacing: DefFontSizePico

        Repeater {
            model: pane.channels
            delegate: PostProcessSwatch {
                required property var modelData

                objectName: "channel" + modelData.name
                color: Qt.alpha(modelData.color, toggled ? 1 : 0.25)
                role: Accessible.CheckBox
                toggled: pane.shownChannels[modelData.name]
                label: modelData.text
                toolTip: qsTr("Show the channel: %1").arg(modelData.text)
                onClicked: pane.showChannel(modelData.name, !toggled)
            }
        }
    }

    SliderNew {
        objectName: "histogramHeight"
        width: parent.width
        toolTip: qsTr("Height of the bars")
        minimum: 100
        maximum: 195
        defaultValue: 100
        suffix: "%"
        wheelWithoutFocus: false
        value: Math.round(200 - pane.maxCoeff * 100)
        onMoved: value => pane.maxCoeff = (200 - value) / 100
    }
}
