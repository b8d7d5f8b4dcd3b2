#include "preview/QChromaKey.h"

QPainter::CompositionMode QChromaKey::compositionModeOf(int blend)
{
    switch (blend) {
        case Zum::BlendDarken:
            return QPainter::CompositionMode_Darken;
        case Zum::BlendMultiply:
            return QPainter::CompositionMode_Multiply;
        case Zum::BlendColorBurn:
            return QPainter::CompositionMode_ColorBurn;
        case Zum::BlendLighten:
        case Zum::BlendSoftLight:
            return QPainter::CompositionMode_Lighten;
        case Zum::BlendScreen:
            return QPainter::CompositionMode_Screen;
        case Zum::BlendColorDodge:
            return QPainter::CompositionMode_ColorDodge;
        case Zum::BlendOverlay:
            return QPainter::CompositionMode_Overlay;
        case Zum::BlendHardLight:
            return QPainter::CompositionMode_HardLight;
        case Zum::BlendDifference:
            return QPainter::CompositionMode_Difference;
        case Zum::BlendExclusion:
            return QPainter::CompositionMode_Exclusion;
        case Zum::BlendPlus:
            return QPainter::CompositionMode_Plus;
        default:
            return QPainter::CompositionMode_SourceOver;
    }
}

void QChromaKey::setBlend(int blend)
{
    if (blend == m_blend)
        return;
    m_blend = blend;
    emit blendChanged();
    emit effectChanged();
}

void QChromaKey::setGrayscale(bool grayscale)
{
    if (grayscale == m_grayscale)
        return;
    m_grayscale = grayscale;
    emit grayscaleChanged();
    emit effectChanged();
}

int QChromaKey::compositionMode() const
{
    return m_grayscale ? QPainter::CompositionMode_SourceOver : compositionModeOf(m_blend);
}

bool QChromaKey::blending() const
{
    return compositionMode() != QPainter::CompositionMode_SourceOver;
}

bool QChromaKey::active() const
{
    return m_grayscale || blending();
}
