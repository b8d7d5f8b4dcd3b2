import QtQuick

// The user's documentation: titles at the left, the chosen page beside them. Nothing is loaded before the view
// is active for the first time.
Item {
    id: docsView

    property bool active: false
    property var pages: []
    property int currentPage: 0
    property bool titlesShown: true
    readonly property bool keysOn: active && !MainWindow.qmlDialogVisible

    visible: active
    onActiveChanged: showPages()
    Component.onCompleted: showPages()

    function showPages() {
        if (!active || content.active)
            return;
        readPages();
        content.active = true;
    }

    function readPages() {
        // A copy: the list itself would be fetched anew at every look.
        pages = MainWindow.docs.slice();
        currentPage = Math.max(0, Math.min(currentPage, pages.length - 1));
    }

    function reload() {
        MainWindow.loadDocs();
        readPages();
    }

    function turn(count) {
        currentPage = Math.max(0, Math.min(currentPage + count, pages.length - 1));
    }

    function scroll(screens) {
        if (content.item)
            content.item.scroll(screens);
    }

    Connections {
        target: WebcamGlobal
        enabled: docsView.active

        function onWebPaneReload() {
            docsView.reload();
        }

        function onWebPaneExpand() {
            docsView.titlesShown = !docsView.titlesShown;
        }
    }

    Shortcut {
        sequences: ["Up"]
        enabled: docsView.keysOn
        onActivated: docsView.turn(-1)
    }

    Shortcut {
        sequences: ["Down"]
        enabled: docsView.keysOn
        onActivated: docsView.turn(1)
    }

    Shortcut {
        sequences: ["PgUp"]
        enabled: docsView.keysOn
        onActivated: docsView.scroll(-1)
    }

    Shortcut {
        sequences: ["PgDown"]
        enabled: docsView.keysOn
        onActivated: docsView.scroll(1)
    }

    Loader {
        id: content

        anchors.fill: parent
        active: false
        sourceComponent: DocsPages {
            view: docsView
        }
    }
}
