import QtQuick

// One choice of several, side by side, in several lines when too narrow. `currentIndex` belongs to the owner:
// a click, or an arrow key, only asks for another. A choice is a text, or {text, icon, toolTip}, of which any may be
// missing.
FocusScope {
    id: choices

    property var model: []
    property int currentIndex: -1
    property bool active: true
    property string toolTip: ""
    property string label: toolTip

    signal chosen(int index)

    implicitWidth: wantedWidth()
    implicitHeight: flow.implicitHeight

    function wantedWidth() {
        let wanted = 0
        for (let i = 0; i < repeater.count; ++i) {
            const item = repeater.itemAt(i)
            wanted += item ? item.implicitWidth + (i > 0 ? flow.spacing : 0) : 0
        }
        return wanted
    }

    function choose(index) {
        if (index >= 0 && index < repeater.count && index !== choices.currentIndex)
            choices.chosen(index)
    }

    Item {
        id: body

        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        enabled: choices.active
        Accessible.role: Accessible.Grouping
        Accessible.name: choices.label
        Accessible.focusable: true

        Keys.onLeftPressed: choices.choose(choices.currentIndex - 1)
        Keys.onUpPressed: choices.choose(choices.currentIndex - 1)
        Keys.onRightPressed: choices.choose(choices.currentIndex + 1)
        Keys.onDownPressed: choices.choose(choices.currentIndex + 1)

        Flow {
            id: flow

            width: choices.width
            spacing: 1

            Repeater {
                id: repeater

                model: choices.model
                TextButton {
                    required property int index
                    required property var modelData
                    readonly property bool plain: typeof modelData === "string"

                    width: Math.min(implicitWidth, choices.width)
                    text: plain ? modelData : modelData.text || ""
                    icon: plain ? "" : modelData.icon || ""
                    toolTip: plain ? choices.toolTip : modelData.toolTip || ""
                    toggled: index === choices.currentIndex
                    role: Accessible.RadioButton
                    tabStop: false
                    onClicked: choices.choose(index)
                }
            }
        }

        FocusRing { visible: body.activeFocus }
    }
}
