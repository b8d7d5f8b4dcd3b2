import QtQuick

// One page of the documentation: title, cover and phrases, in a column that scrolls.
Item {
    id: docsPage

    // A map as MainWindow.docs holds it.
    required property var page
    // Pixels beside the title that other things stand in.
    property int rightRoom: 0
    readonly property int columnWidth: Math.min(DialogWidth, width - bar.width - 2 * DefFontSizeNormal_Pltr)

    onPageChanged: view.contentY = 0

    function scroll(screens) {
        const step = Math.max(DefFontSizeNormal, view.height - 2 * DefFontSizeNormal_x2);
        bar.scrollBy(screens * step);
    }

    Flickable {
        id: view

        objectName: "docsFlickable"
        anchors.left: parent.left
        anchors.right: bar.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        contentHeight: column.height + 2 * DefFontSizeNormal_Pltr
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: column

            x: Math.max(DefFontSizeNormal_Pltr, Math.round((view.width - width) / 2))
            y: DefFontSizeNormal_Pltr
            width: docsPage.columnWidth
            spacing: DefFontSizeNormal_Pltr

            TextLabel {
                objectName: "docsHeading"
                width: Math.min(column.width, docsPage.width - column.x - docsPage.rightRoom)
                wrapMode: Text.Wrap
                elide: Text.ElideNone
                text: docsPage.page.title ?? ""
                // A narrow page has room for a word of fifteen letters.
                font.pixelSize: Math.max(DefFontSizeSmaler, Math.min(DefFontSizeNormal_x2, Math.floor(width / 9.6)))
                Accessible.role: Accessible.Heading
            }

            Image {
                objectName: "docsCover"
                width: column.width
                height: visible ? Math.round(width / 4) : 0
                visible: status === Image.Ready
                source: docsPage.page.zastavka ?? ""
                sourceSize: Qt.size(width, Math.round(width / 4))
                fillMode: Image.PreserveAspectFit
                Accessible.ignored: true
            }

            Repeater {
                model: docsPage.page.text ?? []
                delegate: DocsPhrase {
                    required property var modelData

                    width: column.width
                    phrase: modelData
                }
            }
        }
    }

    Scrollbar {
        id: bar

        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        width: implicitWidth
        flickable: view
    }
}
