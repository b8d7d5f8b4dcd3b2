import QtQuick

// The panel of the Timing tab: the filters, the movie and the current frame. The start button goes to a place that
// does not scroll, where there is one.
Column {
    id: renderPane

    required property var scene
    property Item footPlace: null
    readonly property alias startButton: buttons.startButton

    objectName: "renderPane"
    spacing: DefFontSizeMicro

    Pane {
        width: renderPane.width
        title: qsTr("Filters")

        FiltersControls {
            width: parent.width
            brief: true
        }

        DialogButton {
            objectName: "moreFilters"
            width: Math.min(implicitWidth, parent.width)
            icon: "svgicons/filters.svg"
            text: qsTr("More Filters")
            toolTip: qsTr("All filters, with the key color and the background")
            onClicked: renderPane.scene.filtersBox()
        }
    }

    ExportBox {
        width: renderPane.width
        scene: renderPane.scene
    }

    Item {
        id: ownPlace

        width: renderPane.width
        height: buttons.parent === ownPlace ? buttons.height : 0
        visible: height > 0
    }

    FrameInfoBox {
        width: renderPane.width
    }

    RenderVideoButtons {
        id: buttons

        objectName: "renderButtons"
        parent: renderPane.footPlace ? renderPane.footPlace : ownPlace
        width: parent.width
        scene: renderPane.scene
    }

    RenderStringGenerator {
        id: strings
    }
}
