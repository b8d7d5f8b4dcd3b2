import QtQuick

// The size of the camera's picture, and the sizes to ask it for. The camera has the last word.
ButtonDropPanel {
    id: resolution

    readonly property var sizes: [
        { name: "VGA", width: 640, height: 480, key: "(4:3)" },
        { name: "SVGA", width: 800, height: 600, key: "(4:3)" },
        { name: "XGA", width: 1024, height: 768, key: "(4:3)" },
        { name: "HD 720p", width: 1280, height: 720, key: "(16:9)" },
        { name: "SXGA", width: 1280, height: 1024, key: "(5:4)" },
        { name: "HD+", width: 1600, height: 900, key: "(16:9)" },
        { name: "Full HD 1080p", width: 1920, height: 1080, key: "(16:9)" },
        { name: "WUXGA", width: 1920, height: 1200, key: "(16:10)" },
        { name: "QWXGA", width: 2048, height: 1152, key: "(16:9)" },
        { name: "QXGA", width: 2048, height: 1536, key: "(4:3)" },
        { name: "WQXGA", width: 2560, height: 1600, key: "(8:5)" },
        { name: "WQXGA+", width: 3200, height: 1800, key: "(16:9)" },
        { name: "Ultra HD", width: 3840, height: 2160, key: "(16:9)" },
        { name: "WQUXGA", width: 3840, height: 2400, key: "(16:10)" },
        { name: "DCI 4K", width: 3996, height: 2160, key: "(1.85:1)" },
        { name: "4K Ultra HD", width: 4096, height: 2160, key: "(1.90:1)" }
    ]
    readonly property int camWidth: WebcamGlobal.coordSystemWidth
    readonly property int camHeight: WebcamGlobal.coordSystemHeight

    function choose(size) {
        WebcamGlobal.setFrameSize(size.width, size.height);
        resolution.close();
    }

    text: camWidth + "x" + camHeight
    contentSpacing: 1

    Repeater {
        model: resolution.sizes
        delegate: TextButton {
            required property var modelData
            readonly property string size: modelData.width + "x" + modelData.height

            objectName: "size " + size
            text: modelData.name + "  " + size + "  " + modelData.key
            toolTip: qsTr("Ask the camera for pictures of this size")
            toggled: modelData.width === resolution.camWidth && modelData.height === resolution.camHeight
            onClicked: resolution.choose(modelData)
        }
    }
}
