import QtQuick
import Zum 1.0

// The picture that shows where the frame is transparent.
Column {
    id: control

    spacing: Theme.spacing

    PropertiesCheck {
        objectName: "backgroundOn"
        width: Math.min(implicitWidth, parent.width)
        caption: qsTr("Background")
        toolTip: qsTr("Show a picture behind what the chroma key makes transparent")
        checked: WebcamGlobal.backgroundOn
        onSwitched: checked => WebcamGlobal.backgroundOn = checked
    }

    Flow {
        width: parent.width
        spacing: Theme.spacing

        TextButton {
            objectName: "chooseBackground"
            width: Math.min(implicitWidth, control.width)
            icon: "svgicons/background.svg"
            text: qsTr("Choose Picture")
            toolTip: qsTr("Copy a picture into the project and show it as the background")
            active: WebcamGlobal.backgroundOn
            onClicked: {
                const path = MainWindow.openFileDialog(Zum.ExpoImagesFilter);
                if (path !== "")
                    WebcamGlobal.backgroundImage = path;
            }
        }

        IconButton {
            objectName: "clearBackground"
            icon: "svgicons/clear.svg"
            toolTip: qsTr("No background picture")
            active: WebcamGlobal.backgroundOn && WebcamGlobal.backgroundImage !== ""
            onClicked: WebcamGlobal.backgroundImage = ""
        }
    }

    TextLabel {
        objectName: "backgroundName"
        width: parent.width
        small: true
        dim: true
        wrapMode: Text.WrapAnywhere
        elide: Text.ElideNone
        visible: text !== ""
        text: WebcamGlobal.backgroundImage
    }

    PostProcessValue {
        objectName: "backgroundScale"
        width: parent.width
        text: qsTr("Background scale")
        toolTip: qsTr("Size of the background, as a share of the frame")
        minimum: 10
        maximum: 300
        defaultValue: 100
        suffix: "%"
        active: WebcamGlobal.backgroundOn && WebcamGlobal.backgroundImage !== ""
        value: Math.round(WebcamGlobal.backgroundPreviewScale * 100)
        onChosen: value => WebcamGlobal.backgroundPreviewScale = value / 100
    }
}
