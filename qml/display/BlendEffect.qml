import QtQuick
import QChromaKey 1.0
import Zum 1.0

// Puts one layer of the view over what lies below it as a blend type, or in gray, the way a painter with that
// composition mode does. All three items cover the same area: this one stands where the upper layer is to be seen,
// above both others and in neither of them. With nothing to blend it takes no part: the layers show themselves.
//
// While it works it draws in place of the layers, which keep their mouse and keys. A layer's own opacity counts;
// a turn or scale does not, so it belongs on the layer's children. As a backdrop another BlendEffect will do.
Item {
    id: blendEffect

    // The upper layer, and what it is blended with; gray needs no backdrop.
    property Item source: null
    property Item backdrop: null
    property int blend: Zum.NoBlend
    property bool grayscale: false
    // How much larger than its size the area is shown: its pictures keep their sharpness.
    property real zoom: 1
    readonly property bool working: !!source && source.visible && effect.active
                                    && (!effect.blending || !!backdrop && backdrop.visible)

    QChromaKey {
        id: effect

        blend: blendEffect.blend
        grayscale: blendEffect.grayscale
    }

    Loader {
        anchors.fill: parent
        sourceComponent: !blendEffect.working ? null : effect.blending ? blendPass : grayPass
    }

    Component {
        id: blendPass

        ShaderEffect {
            property BlendEffectLayer source: BlendEffectLayer {
                sourceItem: blendEffect.source
                effect: blendEffect
                zoom: blendEffect.zoom
            }
            property BlendEffectLayer backdrop: BlendEffectLayer {
                sourceItem: blendEffect.backdrop
                effect: blendEffect
                zoom: blendEffect.zoom
            }
            property real sourceOpacity: blendEffect.source ? blendEffect.source.opacity : 1
            property real backdropOpacity: blendEffect.backdrop ? blendEffect.backdrop.opacity : 1
            property int mode: effect.compositionMode

            fragmentShader: "shaders/blend.frag.qsb"
        }
    }

    Component {
        id: grayPass

        ShaderEffect {
            property BlendEffectLayer source: BlendEffectLayer {
                sourceItem: blendEffect.source
                effect: blendEffect
                zoom: blendEffect.zoom
            }
            property real sourceOpacity: blendEffect.source ? blendEffect.source.opacity : 1

            fragmentShader: "shaders/grayscale.frag.qsb"
        }
    }
}
