import QtQuick
import QNumImput 1.0

// A number to type or to step with its buttons, the arrow keys and, once the field has the keyboard, the
// wheel. `number` belongs to the owner: numberEdited() only asks for another.
FocusScope {
    id: field

    property real number: 0
    property real minimum: 0
    property real maximum: 100
    property real step: 1
    property int decimals: 0
    property string label: ""
    property string suffix: ""
    property bool active: true
    property string toolTip: ""

    signal numberEdited(real number)

    implicitWidth: (label !== "" ? Math.ceil(caption.implicitWidth) + Theme.spacing : 0) + entry.wantedWidth
    implicitHeight: Theme.controlHeight

    TextMetrics {
        id: lowest

        font: box.input.font
        text: field.minimum.toFixed(field.decimals)
    }

    TextMetrics {
        id: highest

        font: box.input.font
        text: field.maximum.toFixed(field.decimals)
    }

    TextLabel {
        id: caption

        anchors.left: parent.left
        anchors.right: entry.left
        anchors.rightMargin: Theme.spacing
        height: parent.height
        text: field.label
        opacity: field.enabled && field.active ? 1 : Theme.disabledOpacity
        Accessible.ignored: true
    }

    QNumImput {
        id: entry

        readonly property real widestText: Math.max(lowest.advanceWidth, highest.advanceWidth)
        readonly property real suffixWidth: suffixLabel.visible ? Math.ceil(suffixLabel.implicitWidth)
                                                                  + DefFontSizePico : 0
        readonly property real wantedWidth: Math.max(DefFontSizeNormal_x2, Math.ceil(widestText))
                                            + 4 * DefFontSizePico + suffixWidth + 2 * Theme.controlHeight + 2

        anchors.right: parent.right
        width: Math.min(wantedWidth, field.width)
        height: parent.height
        enabled: field.active
        value: field.number
        minimum: field.minimum
        maximum: field.maximum
        step: field.step
        decimals: field.decimals
        wheelEnabled: box.input.activeFocus
        onEdited: number => {
            field.numberEdited(number)
            entry.value = Qt.binding(() => field.number)
        }

        StepButton {
            id: minus

            anchors.left: parent.left
            height: parent.height
            plus: false
            toolTip: field.toolTip
            label: qsTr("Decrease") + " " + (field.label !== "" ? field.label : field.toolTip)
            active: entry.value > field.minimum
            onClicked: entry.stepBy(-1)
        }

        FieldBox {
            id: box

            anchors.left: minus.right
            anchors.right: plus.left
            anchors.margins: 1
            height: parent.height
            toolTip: field.toolTip
            label: field.label
            role: Accessible.SpinBox
            input.text: entry.text
            input.anchors.leftMargin: DefFontSizePico
            input.anchors.rightMargin: DefFontSizePico + entry.suffixWidth
            input.horizontalAlignment: TextInput.AlignHCenter
            input.onTextEdited: entry.text = input.text
            onCommit: entry.commit()
            onRevert: entry.revert()

            TextLabel {
                id: suffixLabel

                anchors.right: parent.right
                anchors.rightMargin: DefFontSizePico
                height: parent.height
                text: field.suffix
                dim: true
                visible: text !== ""
                Accessible.ignored: true
            }
        }

        StepButton {
            id: plus

            anchors.right: parent.right
            height: parent.height
            toolTip: field.toolTip
            label: qsTr("Increase") + " " + (field.label !== "" ? field.label : field.toolTip)
            active: entry.value < field.maximum
            onClicked: entry.stepBy(1)
        }
    }
}
