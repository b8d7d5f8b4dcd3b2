#pragma once

#include "shared/global/InterfaceState.h"
#include "shared/Zum.h"

#include <QString>
#include <QVariantMap>

/// Shared state of the program: the capturing device, the shot under way and the names of its files.
class CaptureState : public InterfaceState
{
    Q_OBJECT

    MORVANE_PROPERTY(bool, paused, Paused, false)
    MORVANE_PROPERTY(bool, ready, Ready, false)
    MORVANE_PROPERTY(bool, savingFrame, SavingFrame, false)
    MORVANE_PROPERTY(bool, connected, Connected, false)
    MORVANE_PROPERTY(int, capturingInprogress, CapturingInprogress, -1)
    MORVANE_PROPERTY(int, camindex, Camindex, 0)
    MORVANE_PROPERTY(int, connectedCamIndex, ConnectedCamIndex, 0)
    MORVANE_PROPERTY(int, lastWebcamIndex, LastWebcamIndex, 0)
    MORVANE_PROPERTY(QString, cameraName, CameraName)
    MORVANE_PROPERTY(QString, realCameraName, RealCameraName)
    MORVANE_PROPERTY(QString, cameraErrorString, CameraErrorString)
    MORVANE_PROPERTY(QString, cameraMessageText, CameraMessageText)
    MORVANE_PROPERTY(qreal, fps, Fps, 0.0)
    MORVANE_PROPERTY(int, powerFactor, PowerFactor, 40)
    MORVANE_PROPERTY(bool, focusFrameOn, FocusFrameOn, false)
    MORVANE_PROPERTY(bool, cameraZoomed, CameraZoomed, false)
    MORVANE_PROPERTY(bool, cameraPanModeOn, CameraPanModeOn, false)
    MORVANE_PROPERTY(bool, cameraToolsOn, CameraToolsOn, false)
    MORVANE_PROPERTY(bool, zeitRafferRunning, ZeitRafferRunning, false)
    MORVANE_PROPERTY(QString, unsavedCapturedTumb, UnsavedCapturedTumb)
    MORVANE_PROPERTY(QString, unsavedCapturedFull, UnsavedCapturedFull)
    MORVANE_PROPERTY(QString, frameExt, FrameExt, QStringLiteral("jpg"))
    MORVANE_PROPERTY(QString, thumbExt, ThumbExt, QStringLiteral("jpg"))
    MORVANE_PROPERTY(QString, frameLabel, FrameLabel, QStringLiteral("_norm_"))
    MORVANE_PROPERTY(QString, thumbLabel, ThumbLabel, QStringLiteral("_mini_"))
    MORVANE_PROJECT_PROPERTY(bool, useFrameNameMask, UseFrameNameMask, false)
    MORVANE_PROJECT_PROPERTY(QString, frameNameMask, FrameNameMask)
    MORVANE_PROPERTY(QString, iccPath, IccPath)
    MORVANE_PROPERTY(QVariantMap, frameMeta, FrameMeta)
    MORVANE_PROJECT_PROPERTY(int, digitalExposure, DigitalExposure, 10)
    MORVANE_PROJECT_PROPERTY(bool, applyDigitalExposure, ApplyDigitalExposure, false)
    MORVANE_PROJECT_PROPERTY(bool, applyCameraWB, ApplyCameraWB, false)
    MORVANE_PROJECT_PROPERTY(bool, preserveHighlights, PreserveHighlights, false)
    MORVANE_PROJECT_PROPERTY(int, preserveHighlightsValue, PreserveHighlightsValue, 0)
    MORVANE_PROPERTY(int, updateRAWImageType, UpdateRAWImageType, Zum::UpdateRAWNone)

public:
    using InterfaceState::InterfaceState;
};
