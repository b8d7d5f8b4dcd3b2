import QtQuick
import "VideoEffects.js" as EffectsScript

// The name of the project's video effect.
TextLabel {
    id: name

    readonly property string effect: WebcamGlobal.videoEffectsString

    function refresh() {
        WebcamGlobal.currentFilterHumanReadableName = nameOf(effect);
    }

    // An effect that the catalogue does not have, from an older project, is called what its filter is called.
    function nameOf(effect) {
        const filter = WebcamGlobal.getFilterName(effect);
        const entry = EffectsScript.effects(FramesModel.framesCount)
                      .find(entry => WebcamGlobal.getFilterName(entry.filter) === filter);
        return entry ? entry.comment : filter !== "" ? filter : qsTr("No Effect");
    }

    text: WebcamGlobal.currentFilterHumanReadableName
    wrapMode: Text.Wrap
    elide: Text.ElideNone
    onEffectChanged: refresh()
    Component.onCompleted: refresh()
}
