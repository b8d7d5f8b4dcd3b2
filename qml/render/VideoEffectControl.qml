import QtQuick
import "VideoEffects.js" as EffectsScript

// One value of a video effect, with the control that the catalogue names. `value` belongs to the owner: chosen()
// only asks for another.
PropertiesRow {
    id: row

    required property var variable
    property string value
    readonly property int control: variable.control ?? EffectsScript.controls.menu
    readonly property bool listed: control === EffectsScript.controls.menu
    readonly property bool grey: control === EffectsScript.controls.grayscale
    readonly property bool hue: control === EffectsScript.controls.huenumber
    // What stands for a value that was not chosen.
    readonly property string shownValue: value !== "" ? value : String(variable.prop[0].value)
    // Amounts of frames that the film does not have are left out; the ends of the list have names and stay.
    readonly property var choices: variable.prop.filter(choice => choice.name !== choice.value
        || variable.maxvalue === undefined || Number(choice.value) <= variable.maxvalue)

    signal chosen(string value)

    text: variable.displayname
    toolTip: variable.proptip

    VideoEffectChoice {
        width: Math.min(implicitWidth, parent.width)
        visible: row.listed
        label: row.text
        toolTip: row.toolTip
        choices: row.listed ? row.choices : []
        value: row.shownValue
        onChosen: value => row.chosen(value)
    }

    SliderNew {
        objectName: "effectSlider"
        width: parent.width
        visible: !row.listed
        toolTip: row.toolTip
        minimum: row.listed ? 0 : Number(row.variable.prop[0].value)
        maximum: row.listed ? 1 : Number(row.variable.prop[row.variable.prop.length - 1].value)
        defaultValue: minimum
        wheelWithoutFocus: false
        value: row.listed ? 0 : Number(row.shownValue)
        onMoved: value => row.chosen(String(Math.round(value)))
    }

    Rectangle {
        objectName: "effectColor"
        width: parent.width
        height: DefFontSizeMicro
        radius: Theme.corner
        visible: row.grey || row.hue
        color: row.hue ? Qt.hsla(Number(row.shownValue) / 360, 1, 0.5, 1)
                       : Qt.hsla(0, 0, Number(row.shownValue) / 255, 1)
        border.width: 1
        border.color: Theme.line
    }
}
