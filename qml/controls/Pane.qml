import QtQuick

// A box of a panel with a title; what is declared in it stands below each other.
Rectangle {
    id: pane

    property string title: ""
    default property alias content: column.data
    property alias contentSpacing: column.spacing
    readonly property real contentWidth: width - 2 * Theme.padding

    implicitWidth: ControlsPanesBoxW
    implicitHeight: Math.ceil(column.y + column.height + Theme.padding)
    radius: Theme.corner
    color: Theme.panel
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    TextLabel {
        id: heading

        x: Theme.padding
        y: DefFontSizeNano
        width: pane.contentWidth
        height: visible ? DefFontSizeNormal_SevenEighths : 0
        text: pane.title
        color: controlsTextColor
        visible: text !== ""
        Accessible.role: Accessible.Heading
    }

    Column {
        id: column

        x: Theme.padding
        y: heading.visible ? heading.y + heading.height + Theme.spacing : Theme.padding
        width: pane.contentWidth
        spacing: Theme.spacing
    }
}
