import QtQuick

// The size of all letters, from the next start on.
PropertiesRow {
    id: row

    readonly property int largestIndex: 8
    readonly property int automatic: MainWindow.getFontsize()
    readonly property var sizes: [automatic].concat(Array.from({ length: largestIndex + 1 }, (_, index) => index))
    property int atStart

    function choose(size) {
        WebcamGlobal.fontSize = size;
        MainWindow.addSetting("fontsize", size);
    }

    text: qsTranslate("PropertiesDialog", "Font Size")
    Component.onCompleted: atStart = WebcamGlobal.fontSize

    ChoiceRow {
        objectName: "fontSize"
        width: parent.width
        label: row.text
        toolTip: qsTranslate("PropertiesDialog", "Size of letters and controls")
        model: row.sizes.map(size => size === row.automatic ? qsTranslate("PropertiesDialog", "Auto")
                                                            : String(size))
        currentIndex: row.sizes.indexOf(WebcamGlobal.fontSize)
        onChosen: index => row.choose(row.sizes[index])
    }

    ChangesWillTakeEffect {
        objectName: "fontNote"
        width: parent.width
        visible: WebcamGlobal.fontSize !== row.atStart
    }
}
