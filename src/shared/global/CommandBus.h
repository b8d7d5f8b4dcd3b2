#pragma once

#include "shared/global/EffectState.h"

#include <QString>

/// The command bus: a press in the scene emits one of these signals, and whoever cares is connected to it.
/// They carry no state; the sender does not know who listens.
class CommandBus : public EffectState
{
    Q_OBJECT

public:
    using EffectState::EffectState;

signals:
    // Dialogs and focus
    void globalDismiss();
    void globalConfirm();
    void globalSave();
    void dialogClosing();
    void tab();

    // Project
    void saved();
    void autosave();
    void saveProject();
    void saveAndCleanup();
    void projectCreateNew();
    void showProjectPresets();

    // Timeline
    void timelineGotoStart();
    void timelineGotoEnd();
    void timelinePrevFrame();
    void timelineNextFrame();
    void timelineSelectFrame();
    void timelineDeleteFrames();
    void timelineFrameDuplicate();
    void timelineShowAddBox();
    void timelineHideAddBox();
    void timelineDismiss();

    // Display
    void switchDisplayTab();
    void displayTabShowCaptiured();
    void displayTabShowLiveView();
    void clearCache();

    // Player
    void togglePlayerPlayPause();
    void videoPlayerStepLeft();
    void videoPlayerStepRight();
    void launchVideoImport();
    void showVideoExtractorWarningDialog();

    // Keys
    void key_Shift();
    void key_Control();
    void key_ControlShift();
    void key_Alt();
    void key_Backspace();
    void key_MediaPlay();
    void key_MediaPause();
    void key_MediaTogglePlayPause();
    void key_MediaStop();
    void key_MediaRecord();
    void key_MediaNext();
    void key_MediaPrevious();
    void keysReleased();

    // Documents
    void webPaneReload();
    void webPaneExpand();

    // Capturing device
    void capturingDeviceConnect();
    void capturingDeviceDisconnect();
    void reloadCapturingDevice();
    void getCapturingDevicesList();
    void capturingDevicesListChanged();
    void doCaptureFrame();
    void captureFrame(const QString &frameExt, const QString &fullPath, const QString &tumbPath);
    void focusNear2();
    void focusFar2();
    void setFrameSize(int width, int height);
    void webCameraProperty(int propId, int value);
    void webCameraPropChanged(int propId, qreal value);
    void updateWebcamSettings();
    void cameraSettingsJustLoaded();
    void cameraSettingsChanged();
    void showCamSettings();
    void showCameraPresets();
    void currentBlend(int blend);
    void imageQualityError();
    /// A command was given that needs something that is not there; `feature` is one of Zum::FeaturesList.
    void accessToUnavailFeature(int feature);

    // Messages and the model, forwarded for those who know only this object
    void appendMessage(int msgSender, int msgType, const QString &msgText);
    void disconnectModel();
    void connectModel();
};
