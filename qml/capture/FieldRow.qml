import QtQuick

// A name with controls beside it, or below it where the panel is too narrow for both.
Item {
    id: row

    property string text: ""
    default property alias content: place.data
    readonly property bool narrow: width < DefFontSizeNormal_x20

    implicitHeight: place.y + place.height

    TextLabel {
        id: caption

        width: row.narrow ? row.width : Math.round(row.width * 0.36)
        height: Math.max(Theme.controlHeight, implicitHeight)
        text: row.text
        wrapMode: Text.Wrap
    }

    Column {
        id: place

        x: row.narrow ? 0 : caption.width + Theme.spacing
        y: row.narrow ? caption.height : 0
        width: row.width - x
        spacing: Theme.spacing
    }
}
