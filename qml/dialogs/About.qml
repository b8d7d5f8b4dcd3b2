import QtQuick

// Who the program is.
DialogBox {
    id: dialog

    readonly property var info: MainWindow.appInfo
    readonly property var facts: [
        { name: qsTr("Version"), value: info.appVersion },
        { name: qsTr("Build date"), value: info.buildDate },
        { name: qsTr("Vendor"), value: info.vendorName },
        { name: qsTr("Qt"), value: info.qtVersion },
        { name: qsTr("OpenCV"), value: info.openCV },
        { name: qsTr("System"), value: info.runningOS }
    ]

    heading: info.appName + " " + info.appType
    buttons: [
        DialogButton {
            text: qsTr("Close")
            toolTip: text
            onClicked: WebcamGlobal.dialogClosing()
        }
    ]

    Item {
        width: parent.width
        height: Math.max(picture.height, list.height)

        Image {
            id: picture

            width: Math.min(DefFontSizeNormal_x8, parent.width / 4)
            height: width
            sourceSize: Qt.size(width, height)
            source: "images/app-icon.svg"
            Accessible.ignored: true
        }

        Column {
            id: list

            anchors.left: picture.right
            anchors.leftMargin: DefFontSizeNormal
            anchors.right: parent.right
            spacing: DefFontSizePico

            Repeater {
                model: dialog.facts
                delegate: Item {
                    id: fact

                    required property var modelData

                    width: list.width
                    height: Math.max(name.height, value.height)

                    TextLabel {
                        id: name

                        width: Math.round(parent.width * 0.4)
                        text: fact.modelData.name
                        dim: true
                        wrapMode: Text.Wrap
                        elide: Text.ElideNone
                    }

                    TextLabel {
                        id: value

                        anchors.left: name.right
                        anchors.leftMargin: Theme.spacing
                        anchors.right: parent.right
                        text: fact.modelData.value
                        wrapMode: Text.Wrap
                        elide: Text.ElideNone
                    }
                }
            }
        }
    }

    Flow {
        width: parent.width
        spacing: Theme.spacing

        Repeater {
            model: [dialog.info.appWebsite, dialog.info.vendorWebsite]
            delegate: DialogButton {
                required property string modelData

                width: Math.min(implicitWidth, dialog.width - 2 * dialog.margin)
                icon: "svgicons/web.svg"
                text: modelData
                toolTip: qsTr("Open in the browser")
                onClicked: MainWindow.openUrlExternally(modelData)
            }
        }
    }
}
