#pragma once

#include "shared/PropertyMacros.h"
#include "shared/Zum.h"

#include <QColor>
#include <QQuickItem>
#include <QVariantList>

/// First layer of RamPreview: the switches and values that it only keeps, for its requests, its painting and
/// its mouse handling. The chain is a device, not a kind.
class RamPreviewState : public QQuickItem
{
    Q_OBJECT

    /// What the picture is fitted into while the scale is automatic.
    MORVANE_PROPERTY(int, cameraViewWidth, CameraViewWidth, 100)
    MORVANE_PROPERTY(int, cameraViewHeight, CameraViewHeight, 100)
    MORVANE_PROPERTY(int, scalePolicy, ScalePolicy, Zum::ScaleToFit)
    /// Which folder serves the picture: the backgrounds, if told so; else the captured or reference frames.
    MORVANE_PROPERTY(bool, playingCaptured, PlayingCaptured, false)
    MORVANE_PROPERTY(bool, playingBackgrounds, PlayingBackgrounds, false)

    /// Kept for the view around the item.
    MORVANE_PROPERTY(qreal, paintedScale, PaintedScale, 1.0)
    /// The panel that belongs to this picture shows.
    MORVANE_PROPERTY(bool, running, Running, false)
    MORVANE_PROPERTY(bool, sourceConnected, SourceConnected, false)
    /// A Zum::BlendType, kept for the effect that the scene lays over the item.
    MORVANE_PROPERTY(int, blend, Blend, Zum::NoBlend)

    /// Shown flipped left to right; the picture itself stays as it is.
    MORVANE_PROPERTY(bool, mirrored, Mirrored, false)
    /// Counts at every paint, also when the picture is the same.
    MORVANE_PROPERTY(bool, forceUpdateHisogram, ForceUpdateHisogram, false)
    MORVANE_PROPERTY(bool, histogramOn, HistogramOn, true)

    MORVANE_PROPERTY(bool, eyedropperOn, EyedropperOn, false)
    MORVANE_PROPERTY(bool, maskingOn, MaskingOn, false)
    /// Fill of the mask. A change makes the next request go around the caches.
    MORVANE_PROPERTY(QColor, maskColor, MaskColor, 0, 255, 0, 100)
    /// Pen of the drawn points and of the nodes' outline.
    MORVANE_PROPERTY(QColor, color, Color, 0xaa, 0x00, 0xff)
    /// Diameter of the mask's brush in pixels of the item.
    MORVANE_PROPERTY(int, drawablePointSize, DrawablePointSize, 50)
    /// Nodes of a polygon in pixels of the item: points, or maps with "x" and "y".
    MORVANE_PROPERTY(QVariantList, pathNodes, PathNodes)

public:
    using QQuickItem::QQuickItem;
};
