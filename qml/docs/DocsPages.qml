import QtQuick

// What the documentation view holds once it has been shown: its buttons, the titles and the page.
Item {
    id: docsPages

    required property var view
    readonly property bool hasPages: view.pages.length > 0

    function scroll(screens) {
        page.scroll(screens);
    }

    Rectangle {
        anchors.fill: parent
        color: globalFonColor
    }

    DocsTitles {
        id: titles

        anchors.left: parent.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        visible: docsPages.hasPages && docsPages.view.titlesShown
        width: visible ? Math.min(DefFontSizeNormal_x18, 0.3 * docsPages.width) : 0
        pages: docsPages.view.pages
        currentPage: docsPages.view.currentPage
        onChosen: index => docsPages.view.currentPage = index
    }

    DocsPage {
        id: page

        anchors.left: titles.right
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        visible: docsPages.hasPages
        page: docsPages.hasPages ? docsPages.view.pages[docsPages.view.currentPage] : ({ })
        rightRoom: buttons.width + scrollBarW + 2 * DefFontSizeMicro
    }

    EmptyState {
        anchors.fill: parent
        visible: !docsPages.hasPages
        icon: "svgicons/docs.svg"
        title: qsTranslate("MorvaneRoot", "No documents")
        text: qsTranslate("MorvaneRoot", "The file with the documents was not found or could not be read.")

        TextButton {
            text: qsTranslate("MorvaneRoot", "Read again")
            icon: "svgicons/reload.svg"
            onClicked: docsPages.view.reload()
        }
    }

    Row {
        id: buttons

        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: DefFontSizeMicro
        anchors.rightMargin: DefFontSizeMicro + scrollBarW
        spacing: 2
        visible: docsPages.hasPages

        IconButton {
            objectName: "expandButton"
            icon: "svgicons/list.svg"
            toggled: docsPages.view.titlesShown
            toolTip: (docsPages.view.titlesShown ? qsTranslate("MorvaneRoot", "Hide the titles")
                                                  : qsTranslate("MorvaneRoot", "Show the titles")) + " [F6]"
            onClicked: docsPages.view.titlesShown = !docsPages.view.titlesShown
        }

        IconButton {
            objectName: "reloadButton"
            icon: "svgicons/reload.svg"
            toolTip: qsTranslate("MorvaneRoot", "Read the documents again") + " [F5]"
            onClicked: docsPages.view.reload()
        }
    }
}
