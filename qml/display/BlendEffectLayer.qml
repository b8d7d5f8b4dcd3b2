import QtQuick

// One layer as a shader sees it: the part that the effect covers, in the pixels that it is shown with.
ShaderEffectSource {
    required property Item effect
    property real zoom: 1

    hideSource: true
    visible: false
    sourceRect: Qt.rect(0, 0, effect.width, effect.height)
    textureSize: Qt.size(textureSide(effect.width), textureSide(effect.height))

    function textureSide(side) {
        return Math.max(1, Math.min(4096, Math.ceil(side * Math.max(1, zoom) * Screen.devicePixelRatio)));
    }
}
