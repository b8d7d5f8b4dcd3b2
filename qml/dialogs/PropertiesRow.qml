import QtQuick

// One line of the settings: what it is about at the left, a check box where it can be switched, and its
// controls at the right, or below where the dialog is narrow.
Item {
    id: row

    property string text
    property bool checkable: false
    property bool checked: false
    property string toolTip
    property alias checkBox: check
    default property alias content: controls.data
    readonly property bool narrow: width < 2 * DefFontSizeNormal_x15
    readonly property real leftWidth: narrow ? width : DefFontSizeNormal_x14
    readonly property Item head: checkable ? check : caption

    signal switched(bool checked)

    implicitHeight: narrow ? head.height + (controls.height > 0 ? Theme.spacing + controls.height : 0)
                           : Math.max(head.height, controls.height)

    TextLabel {
        id: caption

        width: row.leftWidth
        height: Math.max(Theme.controlHeight, implicitHeight)
        visible: !row.checkable
        text: row.text
        wrapMode: Text.Wrap
        elide: Text.ElideNone
    }

    PropertiesCheck {
        id: check

        width: Math.min(implicitWidth, row.leftWidth)
        visible: row.checkable
        caption: row.text
        toolTip: row.toolTip
        checked: row.checked
        onSwitched: checked => row.switched(checked)
    }

    Column {
        id: controls

        x: row.narrow ? 0 : row.leftWidth + Theme.padding
        y: row.narrow ? row.head.height + Theme.spacing : 0
        width: row.width - x
        spacing: Theme.spacing
    }
}
