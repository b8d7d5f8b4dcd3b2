import QtQuick

// The tabs below the picture: which layer is on top, and how opaque each is.
Item {
    id: tabs

    required property var rules

    readonly property var names: [qsTr("Live View"), qsTr("Captured"), qsTr("Reference")]
    readonly property real cell: (width - 2 * DefFontSizeNano) / 3
    // With little room the tabs are pictures, and with less only the open one has its slider beside it.
    readonly property bool roomy: cell > words.widest + DefFontSizeNormal_x8 + Theme.padding
    readonly property bool tight: !roomy && cell < Theme.controlHeight + DefFontSizeNormal_x5

    implicitHeight: Theme.controlHeight + DefFontSizePico

    TextMetrics {
        id: words

        readonly property real widest: advanceWidth + 2 * Theme.padding

        font.pixelSize: DefFontSizeNormal
        text: tabs.names.reduce((longest, name) => name.length > longest.length ? name : longest, "")
    }

    Row {
        anchors.fill: parent
        anchors.topMargin: DefFontSizePico
        spacing: DefFontSizeNano

        MainViewTab {
            name: tabs.names[0]
            icon: "svgicons/camera.svg"
            hint: qsTr("Live picture on top") + " [Tab]"
            opacityHint: qsTr("Opacity of the live picture")
            view: tabs
            toggled: WebcamGlobal.camboxState === "liveViewPreviewIsOn"
            layerOpacity: WebcamGlobal.opacityLiveView
            sliderActive: WebcamGlobal.connected
            onClicked: tabs.rules.clickLiveView()
            onMoved: value => WebcamGlobal.opacityLiveView = value
        }

        MainViewTab {
            name: tabs.names[1]
            icon: "svgicons/film.svg"
            hint: qsTr("Captured frame on top") + " [Tab]"
            opacityHint: qsTr("Opacity of the captured frame")
            view: tabs
            toggled: WebcamGlobal.camboxState === "capturePreviewIsOn"
            layerOpacity: WebcamGlobal.opacityCaptured
            onClicked: tabs.rules.clickCaptured()
            onMoved: value => WebcamGlobal.opacityCaptured = value
        }

        MainViewTab {
            name: tabs.names[2]
            icon: "svgicons/image.svg"
            hint: active ? qsTr("Reference frame on top") + " [Tab]"
                         : tabs.rules.stacking ? qsTr("The onion skin hides the reference frame")
                         : qsTr("References show with two rows in the timeline")
            opacityHint: qsTr("Opacity of the reference frame")
            view: tabs
            active: tabs.rules.referenceActive
            toggled: WebcamGlobal.camboxState === "referencePreviewIsOn"
            layerOpacity: WebcamGlobal.opacityReference
            sliderActive: active
            onClicked: tabs.rules.clickReference()
            onMoved: value => WebcamGlobal.opacityReference = value
        }
    }
}
