#pragma once

#include "shared/global/CaptureState.h"

/// Shared state of the program: picture, camera and crop sizes and the scales between them.
class GeometryState : public CaptureState
{
    Q_OBJECT

    MORVANE_PROPERTY(int, width, Width, 0)
    MORVANE_PROPERTY(int, height, Height, 0)
    MORVANE_PROPERTY(int, scaledWidth, ScaledWidth, 0)
    MORVANE_PROPERTY(int, scaledHeight, ScaledHeight, 0)
    MORVANE_PROPERTY(int, frameWidth, FrameWidth, 0)
    MORVANE_PROPERTY(int, frameHeight, FrameHeight, 0)
    MORVANE_PROPERTY(int, maxScreenWidth, MaxScreenWidth, 0)
    MORVANE_PROPERTY(int, maxScreenHeight, MaxScreenHeight, 0)
    MORVANE_PROPERTY(qreal, coordSystemWidth, CoordSystemWidth, 100.0)
    MORVANE_PROPERTY(qreal, coordSystemHeight, CoordSystemHeight, 100.0)
    MORVANE_PROPERTY(qreal, displayScale, DisplayScale, 1.0)
    MORVANE_PROPERTY(qreal, coordSystemScale, CoordSystemScale, 1.0)
    MORVANE_PROPERTY(float, camScale, CamScale, 1.0)
    MORVANE_PROPERTY(qreal, camScaleFactor, CamScaleFactor, 1.0)
    MORVANE_PROPERTY(qreal, ramScaleFactor, RamScaleFactor, 1.0)
    MORVANE_PROPERTY(qreal, videoScaleFactor, VideoScaleFactor, 1.0)
    MORVANE_PROJECT_PROPERTY(bool, cropAreaOn, CropAreaOn, false)
    MORVANE_PROJECT_PROPERTY(int, cropAreaX, CropAreaX, 0)
    MORVANE_PROJECT_PROPERTY(int, cropAreaY, CropAreaY, 0)
    MORVANE_PROJECT_PROPERTY(int, cropAreaW, CropAreaW, 0)
    MORVANE_PROJECT_PROPERTY(int, cropAreaH, CropAreaH, 0)
    MORVANE_PROJECT_PROPERTY(qreal, cropAreaProportion, CropAreaProportion, 0.0)
    MORVANE_PROPERTY(qreal, cropAreaWScale, CropAreaWScale, 1.0)
    MORVANE_PROPERTY(qreal, cropAreaHScale, CropAreaHScale, 1.0)
    MORVANE_PROPERTY(float, camScaledCropAreaW, CamScaledCropAreaW, 0.0F)
    MORVANE_PROPERTY(float, camScaledCropAreaH, CamScaledCropAreaH, 0.0F)
    MORVANE_PROJECT_PROPERTY(bool, crop, Crop, false)
    MORVANE_PROJECT_PROPERTY(bool, cropRAWtoCoordSystem, CropRAWtoCoordSystem, true)
    MORVANE_PROJECT_PROPERTY(bool, resize, Resize, true)
    MORVANE_PROJECT_PROPERTY(bool, rotate, Rotate, false)
    MORVANE_PROJECT_PROPERTY(bool, grayscale, Grayscale, false)
    MORVANE_PROJECT_PROPERTY(bool, smoothRender, SmoothRender, false)

public:
    using CaptureState::CaptureState;
};
