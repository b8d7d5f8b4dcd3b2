#pragma once

#include "shared/global/OverlayState.h"
#include "shared/Zum.h"

#include <QColor>
#include <QPoint>
#include <QString>
#include <QVariantMap>

/// Shared state of the program: the layers of the picture: opacities, onion skin, flip-flop, blend,
/// background, mask, eyedropper, filters.
class LayerState : public OverlayState
{
    Q_OBJECT

    MORVANE_PROPERTY(QString, camboxState, CamboxState, QStringLiteral("liveViewPreviewIsOn"))
    MORVANE_PROPERTY(qreal, opacityCaptured, OpacityCaptured, 100.0)
    MORVANE_PROPERTY(qreal, opacityReference, OpacityReference, 100.0)
    MORVANE_PROPERTY(qreal, opacityLiveView, OpacityLiveView, 100.0)
    MORVANE_PROJECT_PROPERTY(qreal, referenceImageScale, ReferenceImageScale, 100.0)
    MORVANE_PROPERTY(int, stackMode, StackMode, Zum::NoStack)
    MORVANE_PROJECT_PROPERTY(int, stackDepth, StackDepth, 1)
    MORVANE_PROPERTY(int, flipFlop, FlipFlop, Zum::NoFlipFlop)
    MORVANE_PROJECT_PROPERTY(int, flipFlopDuration, FlipFlopDuration, 1000)
    MORVANE_PROPERTY(int, flipMinDuration, FlipMinDuration, 500)
    MORVANE_PROPERTY(int, flipMaxDuration, FlipMaxDuration, 5000)
    MORVANE_PROPERTY(bool, flipFlopRunning, FlipFlopRunning, false)
    MORVANE_PROJECT_PROPERTY(int, blend, Blend, Zum::NoBlend)
    MORVANE_PROPERTY(QString, blendName, BlendName)
    MORVANE_PROJECT_PROPERTY(bool, backgroundOn, BackgroundOn, true)
    MORVANE_PROJECT_PROPERTY(QString, backgroundImage, BackgroundImage)
    MORVANE_PROPERTY(bool, backgroundImageIsReference, BackgroundImageIsReference, false)
    MORVANE_PROJECT_PROPERTY(qreal, backgroundPreviewScale, BackgroundPreviewScale, 1.0)
    MORVANE_PROPERTY(int, backgroundPreviewWidth, BackgroundPreviewWidth, 0)
    MORVANE_PROPERTY(int, backgroundPreviewHeight, BackgroundPreviewHeight, 0)
    MORVANE_PROPERTY(bool, foregroundOn, ForegroundOn, true)
    MORVANE_PROPERTY(qreal, foregroundOpacity, ForegroundOpacity, 1.0)
    MORVANE_PROPERTY(bool, maskToolOn, MaskToolOn, false)
    MORVANE_PROPERTY(bool, maskToolVisible, MaskToolVisible, false)
    MORVANE_PROPERTY(QPoint, maskToolPos, MaskToolPos, -500, -500)
    MORVANE_PROPERTY(QColor, maskColor, MaskColor)
    MORVANE_PROPERTY(bool, eyedropperOn, EyedropperOn, false)
    MORVANE_PROPERTY(bool, eyedropperVisible, EyedropperVisible, false)
    MORVANE_PROPERTY(QPoint, eyedropperPos, EyedropperPos, -500, -500)
    MORVANE_PROPERTY(QColor, eyedropperColor, EyedropperColor)
    MORVANE_PROPERTY(QVariantMap, eyedropperColorValue, EyedropperColorValue)
    MORVANE_PROPERTY(bool, chromakeyOn, ChromakeyOn, false)
    MORVANE_PROPERTY(QColor, chromakeyColor, ChromakeyColor)
    MORVANE_PROPERTY(QVariantMap, chromakeyColorValue, ChromakeyColorValue)
    MORVANE_PROJECT_PROPERTY(int, postProcessing, PostProcessing, Zum::NoProcessing)
    MORVANE_PROJECT_PROPERTY(QVariantMap, postProcessSettings, PostProcessSettings)
    MORVANE_PROPERTY(bool, hasPostProcessSettings, HasPostProcessSettings, false)
    MORVANE_PROPERTY(QString, currentFilterHumanReadableName, CurrentFilterHumanReadableName)

public:
    using OverlayState::OverlayState;
};
