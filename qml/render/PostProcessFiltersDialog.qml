import QtQuick
import "VideoEffects.js" as EffectsScript

// The video effect that a render applies: which one, and its values. Each choice takes effect as it is made.
DialogBox {
    id: dialog

    readonly property var effects: EffectsScript.effects(FramesModel.framesCount)
    readonly property string effect: WebcamGlobal.videoEffectsString
    readonly property int currentIndex: indexOf(effect)
    readonly property var entry: currentIndex < 0 ? null : effects[currentIndex]
    // The values of the current effect by their keys.
    property var values: ({})
    readonly property var previewModel: Object.keys(values).filter(key => !key.includes("filter"))
    // What each effect was left with while the dialog has been open.
    property var kept: ({})

    heading: qsTr("Video Effects")
    onEffectChanged: refresh()
    Component.onCompleted: refresh()

    function refresh() {
        values = WebcamGlobal.parseCurrentVideoEffect(effects, false);
    }

    function indexOf(effect) {
        const name = WebcamGlobal.getFilterName(effect);
        return effects.findIndex(entry => WebcamGlobal.getFilterName(entry.filter) === name);
    }

    // -1 is no effect.
    function choose(index) {
        if (entry)
            kept[entry.filter] = effect;
        if (index < 0)
            WebcamGlobal.videoEffectsString = "";
        else if (kept[effects[index].filter])
            WebcamGlobal.videoEffectsString = kept[effects[index].filter];
        else
            WebcamGlobal.parseAndApplySingleVideoEffect(effects[index], true, true);
    }

    function setValue(key, value) {
        const variables = entry.variables.map(variable => Object.assign({}, variable, {
            selected: variable.propname === key ? value : selectedOf(variable)
        }));
        WebcamGlobal.parseAndApplySingleVideoEffect(Object.assign({}, entry, { variables: variables }), true, true);
    }

    // A grey is kept as a colour and chosen as a number.
    function selectedOf(variable) {
        const value = values[variable.propname];
        if (value === undefined || value === "")
            return "";
        return variable.control === EffectsScript.controls.grayscale ? String(WebcamGlobal.colorNameToHue(value))
                                                                     : value;
    }

    buttons: [
        DialogButton {
            objectName: "closeEffects"
            width: Math.min(implicitWidth, dialog.width - 2 * dialog.margin)
            text: qsTr("Close")
            toolTip: text
            toggled: true
            onClicked: WebcamGlobal.dialogClosing()
        }
    ]

    ChoiceRow {
        objectName: "effects"
        width: parent.width
        label: dialog.heading
        toolTip: qsTr("Applied to every frame of the movie")
        model: [qsTr("No Effect")].concat(dialog.effects.map(entry => entry.comment))
        currentIndex: dialog.currentIndex >= 0 ? dialog.currentIndex + 1 : dialog.effect === "" ? 0 : -1
        onChosen: index => dialog.choose(index - 1)
    }

    Repeater {
        model: dialog.entry ? dialog.entry.variables : []
        delegate: VideoEffectControl {
            required property var modelData

            objectName: "effect_" + modelData.propname
            width: parent ? parent.width : 0
            variable: modelData
            value: dialog.selectedOf(modelData)
            onChosen: value => dialog.setValue(modelData.propname, value)
        }
    }

    TextLabel {
        objectName: "effectPreview"
        width: parent.width
        small: true
        dim: true
        visible: text !== ""
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        text: dialog.previewModel.map(key => key + ": " + dialog.values[key]).join(", ")
    }
}
