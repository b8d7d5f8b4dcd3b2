import QtQuick
import Aslider 1.0

// A labelled slider with its value. `value` belongs to the owner: moved() only asks for another, at every step
// of a drag. A double click, or Backspace, gives `defaultValue`.
FocusScope {
    id: root

    property real value: 0
    property real minimum: 0
    property real maximum: 100
    property real step: 1
    property real defaultValue: 0
    property string label: ""
    property bool active: true
    property string toolTip: ""
    // Whether dragging stops at whole steps only.
    property bool discrete: true
    property int decimals: step % 1 === 0 ? 0 : 1
    property string suffix: ""
    property bool showValue: true
    // The same for sliders below each other makes their tracks begin at one line.
    property real labelWidth: label !== "" ? Math.ceil(caption.implicitWidth) : 0
    // In a panel that scrolls, false keeps the wheel from moving a slider that happens to pass by.
    property bool wheelWithoutFocus: true
    readonly property real widest: Math.max(lowest.advanceWidth, highest.advanceWidth)
    readonly property real valueRoom: showValue ? Math.ceil(widest) + 1 + Theme.spacing : 0

    signal moved(real value)

    implicitWidth: track.x + DefFontSizeNormal_x8 + valueRoom
    implicitHeight: Theme.controlHeight

    function textOf(number) {
        return number.toFixed(root.decimals) + root.suffix
    }

    HoverTip { id: hover }

    TextMetrics {
        id: lowest

        font: valueText.font
        text: root.textOf(root.minimum)
    }

    TextMetrics {
        id: highest

        font: valueText.font
        text: root.textOf(root.maximum)
    }

    TextLabel {
        id: caption

        width: Math.min(root.labelWidth, root.width / 2)
        height: parent.height
        text: root.label
        opacity: track.opacity
        Accessible.ignored: true
    }

    Aslider {
        id: track

        anchors.left: caption.right
        anchors.leftMargin: root.labelWidth > 0 ? Theme.spacing : 0
        anchors.right: parent.right
        anchors.rightMargin: root.valueRoom
        height: parent.height
        focus: true
        enabled: root.active
        opacity: enabled ? 1 : Theme.disabledOpacity
        value: root.value
        minimum: root.minimum
        maximum: root.maximum
        step: root.step
        discrete: root.discrete
        defaultValue: root.defaultValue
        handleSize: DefFontSizeNormal
        wheelEnabled: root.wheelWithoutFocus || activeFocus
        onMoved: value => {
            root.moved(value)
            if (!track.pressed)
                track.followOwner()
        }
        onPressedChanged: {
            ToolTips.hide(root)
            if (!track.pressed)
                track.followOwner()
        }
        Accessible.role: Accessible.Slider
        Accessible.name: root.label !== "" ? root.label : root.toolTip
        Accessible.description: root.textOf(track.value)
        Accessible.focusable: true
        Accessible.onIncreaseAction: track.stepBy(1)
        Accessible.onDecreaseAction: track.stepBy(-1)

        function followOwner() {
            track.value = Qt.binding(() => root.value)
        }

        Rectangle {
            id: groove

            y: Math.round((parent.height - height) / 2)
            width: parent.width
            height: DefFontSizePico + 1
            radius: Theme.corner
            color: Theme.button
            border.width: 1
            border.color: Theme.line
        }

        Rectangle {
            y: groove.y
            width: handle.x + handle.width / 2
            height: groove.height
            radius: Theme.corner
            color: Theme.active
            opacity: 0.8
        }

        Rectangle {
            id: handle

            x: Math.round(track.position * (track.width - width))
            y: Math.round((parent.height - height) / 2)
            width: DefFontSizeNormal
            height: DefFontSizeNormal
            radius: width / 2
            color: track.pressed ? Theme.active : hover.hovered && track.enabled ? "#ffffff" : Theme.text
            border.width: 1
            border.color: Theme.button
        }

        FocusRing { visible: track.activeFocus }
    }

    TextLabel {
        id: valueText

        anchors.right: parent.right
        height: parent.height
        horizontalAlignment: Text.AlignRight
        text: root.textOf(track.value)
        dim: true
        visible: root.showValue
        opacity: track.opacity
        Accessible.ignored: true
    }
}
