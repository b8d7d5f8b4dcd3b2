import QtQuick

// One tab of the view with the slider of its layer's opacity.
Item {
    id: cell

    required property Item view
    property string name: ""
    property string icon: ""
    property string hint: ""
    property string opacityHint: ""
    property bool toggled: false
    property bool active: true
    property bool sliderActive: true
    property real layerOpacity: 100
    readonly property bool sliderShown: !view.tight || toggled
    readonly property real tabWidth: view.roomy ? Math.ceil(tab.implicitWidth) : Theme.controlHeight
    readonly property real tightRest: view.width - 2 * DefFontSizeNano - 3 * Theme.controlHeight

    signal clicked()
    signal moved(real value)

    width: view.tight ? Theme.controlHeight + (toggled ? Math.max(0, tightRest) : 0) : view.cell
    height: Theme.controlHeight
    clip: true

    TabButton {
        id: tab

        width: cell.tabWidth
        text: cell.view.roomy ? cell.name : ""
        icon: cell.view.roomy ? "" : cell.icon
        label: cell.name
        toolTip: cell.view.roomy ? cell.hint : cell.name + ": " + cell.hint
        active: cell.active
        toggled: cell.toggled
        onClicked: cell.clicked()
    }

    SliderNew {
        anchors.left: tab.right
        anchors.leftMargin: Theme.spacing
        anchors.right: parent.right
        anchors.rightMargin: DefFontSizePico
        visible: cell.sliderShown && width > DefFontSizeNormal_x2
        active: cell.sliderActive
        showValue: width > DefFontSizeNormal_x8
        suffix: "%"
        value: cell.layerOpacity
        defaultValue: 100
        toolTip: cell.opacityHint
        onMoved: value => cell.moved(value)
    }
}
