import QtQuick

// The well that a text is typed into, and the rules of leaving it: Return counts what was typed and gives the
// keyboard back, Escape drops it, and leaving in any other way counts it.
Rectangle {
    id: box

    property alias input: editor
    property string toolTip: ""
    property string label: ""
    property string placeholder: ""
    property int role: Accessible.EditableText

    signal commit()
    signal revert()

    implicitHeight: Theme.controlHeight
    radius: Theme.corner
    color: Theme.well
    border.width: 1
    border.color: editor.activeFocus ? Theme.focusLine : hover.hovered && enabled ? Theme.dimText : Theme.line
    opacity: enabled ? 1 : Theme.disabledOpacity

    HoverTip { id: hover }

    TextLabel {
        anchors.fill: editor
        horizontalAlignment: editor.horizontalAlignment
        text: box.placeholder
        color: "#777777"
        visible: editor.text === "" && !editor.activeFocus
        Accessible.ignored: true
    }

    TextInput {
        id: editor

        function commit() {
            box.commit()
        }

        anchors.fill: parent
        anchors.leftMargin: Theme.spacing
        anchors.rightMargin: Theme.spacing
        focus: true
        activeFocusOnTab: true
        clip: true
        color: Theme.text
        font.pixelSize: DefFontSizeNormal
        renderType: Text.NativeRendering
        selectByMouse: true
        selectionColor: LinkColor3
        selectedTextColor: "#ffffff"
        verticalAlignment: TextInput.AlignVCenter
        Accessible.role: box.role
        Accessible.name: box.label !== "" ? box.label : box.toolTip
        Accessible.description: box.toolTip
        Accessible.editable: true
        Accessible.focusable: true

        onActiveFocusChanged: {
            if (editor.activeFocus) {
                FocusHome.begin(editor)
                editor.selectAll()
            } else {
                FocusHome.end(editor)
                editor.deselect()
                box.commit()
            }
        }

        Keys.onReturnPressed: box.leave()
        Keys.onEnterPressed: box.leave()
        Keys.onEscapePressed: {
            box.revert()
            FocusHome.goHome()
        }
    }

    function leave() {
        box.commit()
        editor.selectAll()
        FocusHome.goHome()
    }
}
