import QtQuick

// A number of the filters, with its name above it. `value` belongs to the owner: chosen() asks for another when the
// slider has come to rest, because each change filters the picture anew.
Column {
    id: control

    property string text
    property string toolTip
    property real value: 0
    property real minimum: 0
    property real maximum: 100
    property real defaultValue: 0
    property string suffix
    property bool active: true

    signal chosen(real value)

    spacing: 0
    Component.onDestruction: control.commit()

    function commit() {
        if (!rest.running)
            return;
        rest.stop();
        control.chosen(rest.wanted);
    }

    TextLabel {
        width: parent.width
        text: control.text
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        opacity: control.active ? 1 : Theme.disabledOpacity
        Accessible.ignored: true
    }

    SliderNew {
        objectName: control.objectName + "Slider"
        width: parent.width
        toolTip: control.toolTip
        value: rest.running ? rest.wanted : control.value
        minimum: control.minimum
        maximum: control.maximum
        defaultValue: control.defaultValue
        suffix: control.suffix
        active: control.active
        wheelWithoutFocus: false
        onMoved: value => {
            rest.wanted = value;
            rest.restart();
        }
    }

    Timer {
        id: rest

        property real wanted: 0

        interval: 200
        onTriggered: control.chosen(wanted)
    }
}
