#pragma once

#include "shared/global/LayerState.h"
#include "shared/Zum.h"

/// Shared state of the program: frame previews, their cache, the histograms and the preview window.
class PreviewState : public LayerState
{
    Q_OBJECT

    MORVANE_PROPERTY(int, ramCacheSize, RamCacheSize, 0)
    MORVANE_PROPERTY(int, ramCacheUsed, RamCacheUsed, 0)
    MORVANE_PROPERTY(qreal, ramCacheUsedPercent, RamCacheUsedPercent, 0.0)
    MORVANE_PROPERTY(bool, ramPaused, RamPaused, false)
    MORVANE_PROPERTY(bool, ramPreviewCaching, RamPreviewCaching, false)
    MORVANE_PROPERTY(bool, cachingRightNow, CachingRightNow, false)
    MORVANE_PROPERTY(bool, emptyCache, EmptyCache, false)
    MORVANE_PROJECT_PROPERTY(int, ramPreviewWidth, RamPreviewWidth, 540)
    MORVANE_PROJECT_PROPERTY(int, ramPreviewHeight, RamPreviewHeight, 360)
    MORVANE_PROPERTY(bool, histogramOn, HistogramOn, true)
    MORVANE_PROPERTY(bool, ramHistogramOn, RamHistogramOn, false)
    MORVANE_PROPERTY(int, frameWrapper, FrameWrapper, Zum::NoFrameWrapper)
    MORVANE_PROJECT_PROPERTY(int, previewImageShiftX, PreviewImageShiftX, 0)
    MORVANE_PROJECT_PROPERTY(int, previewImageShiftY, PreviewImageShiftY, 0)
    MORVANE_PROJECT_PROPERTY(bool, previewImageMirror, PreviewImageMirror, false)
    MORVANE_PROJECT_PROPERTY(bool, previewImageScaled, PreviewImageScaled, true)
    MORVANE_PROJECT_PROPERTY(qreal, timelineFps, TimelineFps, 25.0)

public:
    using LayerState::LayerState;
};
