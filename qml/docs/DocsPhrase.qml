import QtQuick

// One phrase of a page. A line of its text that holds " | " is a row of a table: what stands before the mark
// in the first column, what stands behind it in the second.
Column {
    id: docsPhrase

    // A map as the "text" of a page holds it.
    required property var phrase
    readonly property int firstColumn: Math.min(DefFontSizeNormal_x14, 0.4 * width)

    spacing: Theme.spacing

    TextLabel {
        width: docsPhrase.width
        visible: text !== ""
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        text: docsPhrase.phrase.title
        font.pixelSize: DefFontSizeBigger
        color: Theme.active
        Accessible.role: Accessible.Heading
    }

    Image {
        width: Math.min(docsPhrase.width, implicitWidth)
        visible: status === Image.Ready
        source: docsPhrase.phrase.image
        sourceSize.width: docsPhrase.width
        fillMode: Image.PreserveAspectFit
        Accessible.ignored: true
    }

    Repeater {
        model: docsPhrase.phrase.text === "" ? [] : docsPhrase.phrase.text.split("\n")
        delegate: Row {
            id: line

            required property string modelData
            readonly property int mark: modelData.indexOf(" | ")

            width: docsPhrase.width

            TextLabel {
                visible: line.mark >= 0
                width: docsPhrase.firstColumn - Theme.padding
                wrapMode: Text.Wrap
                elide: Text.ElideNone
                lineHeight: 1.2
                text: line.modelData.substring(0, line.mark)
                color: "#ffffff"
            }

            Item {
                visible: line.mark >= 0
                width: Theme.padding
                height: 1
            }

            TextLabel {
                width: docsPhrase.width - (line.mark >= 0 ? docsPhrase.firstColumn : 0)
                wrapMode: Text.Wrap
                elide: Text.ElideNone
                lineHeight: 1.2
                text: line.mark >= 0 ? line.modelData.substring(line.mark + 3) : line.modelData
            }
        }
    }

    TextLabel {
        objectName: "docsEmail"
        width: docsPhrase.width
        visible: text !== ""
        text: docsPhrase.phrase.emailbox
        dim: true
    }

    // Addresses are long: this one is wrapped where a button's text would be cut.
    ButtonBase {
        id: link

        objectName: "docsLink"
        width: Math.min(docsPhrase.width, picture.width + Math.ceil(measure.advanceWidth) + 1 + 3 * Theme.padding)
        height: Math.max(Theme.controlHeight, address.height + Theme.padding)
        visible: label !== ""
        label: docsPhrase.phrase.weblink
        toolTip: qsTranslate("MorvaneRoot", "Open in the web browser")
        onClicked: MainWindow.openUrlExternally(docsPhrase.phrase.weblink)

        TextMetrics {
            id: measure

            font: address.font
            text: link.label
        }

        Icon {
            id: picture

            x: Theme.padding
            anchors.verticalCenter: parent.verticalCenter
            icon: "svgicons/link.svg"
            size: Theme.smallIconSize
        }

        TextLabel {
            id: address

            anchors.left: picture.right
            anchors.leftMargin: Theme.padding
            anchors.verticalCenter: parent.verticalCenter
            width: link.width - x - Theme.padding
            wrapMode: Text.WrapAnywhere
            elide: Text.ElideNone
            text: link.label
            color: LinkColor
            Accessible.ignored: true
        }
    }
}
