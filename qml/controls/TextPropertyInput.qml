import QtQuick

// A line of text to type. `text` belongs to the owner: edited() comes once the user has finished, with what
// should stand there.
FocusScope {
    id: field

    property string text: ""
    property string placeholder: ""
    property bool active: true
    property string toolTip: ""
    property string label: toolTip !== "" ? toolTip : placeholder
    // What stands in the field now, not yet finished.
    readonly property string typed: box.input.text

    signal edited(string text)

    implicitWidth: DefFontSizeNormal_x12
    implicitHeight: box.implicitHeight

    function commit() {
        const typed = box.input.text
        if (typed === field.text)
            return
        field.edited(typed)
        field.revert()
    }

    function revert() {
        box.input.text = Qt.binding(() => field.text)
    }

    FieldBox {
        id: box

        anchors.fill: parent
        enabled: field.active
        toolTip: field.toolTip
        label: field.label
        placeholder: field.placeholder
        input.text: field.text
        onCommit: field.commit()
        onRevert: field.revert()
    }
}
