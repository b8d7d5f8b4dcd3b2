import QtQuick

// The chroma key: what colour becomes transparent, how near to it and how softly. A similarity of nothing is off.
Column {
    id: control

    readonly property var parts: String(WebcamGlobal.postProcessSettings["chromakey"] ?? "")
                                 .split(";").filter(part => part !== "")
    readonly property bool keyed: parts.length === 3
    readonly property real similarity: keyed ? numberOf(parts[0], ChromaSimilarityMin) : ChromaSimilarityMin
    readonly property string keyColor: keyed ? parts[2] : keptColor
    readonly property string keptColor: WebcamGlobal.chromakeyColor.valid ? WebcamGlobal.chromakeyColor.toString()
                                                                          : "#00ff01"
    property real keptSmoothness: 10
    readonly property real smoothness: keyed ? numberOf(parts[1], keptSmoothness) : keptSmoothness

    spacing: Theme.spacing

    function numberOf(text, otherwise) {
        const number = Number(text);
        return isNaN(number) ? otherwise : number;
    }

    function apply(similarity, smoothness, color) {
        WebcamGlobal.chromakeyColor = color;
        control.keptSmoothness = smoothness;
        if (similarity > ChromaSimilarityMin)
            WebcamGlobal.setPostProcessSetting("chromakey", similarity + ";" + smoothness + ";" + color);
        else
            WebcamGlobal.removePostProcessSetting("chromakey");
    }

    function applyColor(color) {
        apply(similarity, smoothness, color);
    }

    PostProcessValue {
        objectName: "similarity"
        width: parent.width
        text: qsTr("Chroma Key")
        toolTip: qsTr("How near to the key color becomes transparent; 0 is off")
        minimum: ChromaSimilarityMin
        maximum: ChromaSimilarityMax
        defaultValue: ChromaSimilarityMin
        value: control.similarity
        onChosen: value => control.apply(value, control.smoothness, control.keyColor)
    }

    PostProcessValue {
        objectName: "smoothness"
        width: parent.width
        text: qsTr("Smoothness")
        toolTip: qsTr("How softly the transparent part ends")
        minimum: ChromaBlendMin
        maximum: ChromaBlendMax
        defaultValue: 10
        value: control.smoothness
        onChosen: value => control.apply(control.similarity, value, control.keyColor)
    }

    Flow {
        width: parent.width
        spacing: DefFontSizePico

        Repeater {
            model: WebcamGlobal.chromakeyColors
            delegate: PostProcessSwatch {
                required property var modelData

                objectName: "keyColor"
                color: modelData.name
                toolTip: qsTr("Key color %1").arg(modelData.name)
                toggled: modelData.name === control.keyColor
                onClicked: control.applyColor(modelData.name)
            }
        }

        PostProcessSwatch {
            objectName: "pickedColor"
            visible: WebcamGlobal.eyedropperColor.valid
            color: WebcamGlobal.eyedropperColor
            icon: "svgicons/eyedropper.svg"
            toolTip: qsTr("The color that the eyedropper has picked")
            toggled: WebcamGlobal.eyedropperColor.toString() === control.keyColor
            onClicked: control.applyColor(WebcamGlobal.eyedropperColor.toString())
        }

        PostProcessSwatch {
            id: own

            objectName: "ownColor"
            color: control.keyColor
            icon: "svgicons/color.svg"
            role: Accessible.ButtonMenu
            toolTip: qsTr("Another key color")
            toggled: panel.opened
            onClicked: {
                panel.toggle();
                if (panel.opened && activeFocus)
                    panel.enter();
            }
        }
    }

    DropPanel {
        id: panel

        owner: own
        contentWidth: chooser.implicitWidth
        contentHeight: chooser.implicitHeight

        ColorChooser {
            id: chooser

            toolTip: own.toolTip
            color: control.keyColor
            onChosen: value => control.applyColor(value.toString())
        }
    }
}
