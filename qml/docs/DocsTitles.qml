import QtQuick

// The list of page titles. `currentPage` belongs to the owner: a click only asks for another page.
Rectangle {
    id: titles

    required property var pages
    required property int currentPage

    signal chosen(int index)

    color: GlobalDarkerColor
    Accessible.role: Accessible.List
    Accessible.name: qsTranslate("MorvaneRoot", "Titles")

    ListView {
        id: list

        anchors.left: parent.left
        anchors.right: bar.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.topMargin: DefFontSizeMicro
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: titles.pages
        currentIndex: titles.currentPage
        highlightMoveDuration: 0
        delegate: ButtonBase {
            id: entry

            required property var modelData
            required property int index

            objectName: "docsTitle" + index
            width: ListView.view.width
            implicitHeight: Math.max(Theme.controlHeight, caption.implicitHeight + Theme.padding)
            label: modelData.title
            role: Accessible.ListItem
            tabStop: toggled
            toggled: index === titles.currentPage
            ground: hovered ? Theme.buttonHovered : toggled ? Theme.well : "transparent"
            onClicked: titles.chosen(index)

            Rectangle {
                width: 3
                height: entry.height
                color: Theme.active
                visible: entry.toggled
            }

            TextLabel {
                id: caption

                x: Theme.padding + 3
                width: entry.width - 2 * x
                height: entry.height
                wrapMode: Text.Wrap
                elide: Text.ElideNone
                text: entry.modelData.title
                // A narrow list has room for a word of fifteen letters.
                font.pixelSize: Math.max(DefFontSizeNano, Math.min(DefFontSizeNormal, Math.floor(width / 9.6)))
                color: entry.toggled ? Theme.active : Theme.text
                Accessible.ignored: true
            }
        }
    }

    Scrollbar {
        id: bar

        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        width: implicitWidth
        flickable: list
    }
}
