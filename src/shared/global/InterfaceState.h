#pragma once

#include "shared/global/ProjectState.h"
#include "shared/Zum.h"

#include <QString>
#include <QVariant>

/// Shared state of the program: tabs, panels, fonts, tool tips, sounds and the inactivity watch.
class InterfaceState : public ProjectState
{
    Q_OBJECT

    MORVANE_PROPERTY(int, fontSize, FontSize, 1)
    MORVANE_PROPERTY(bool, showToolTips, ShowToolTips, true)
    MORVANE_PROPERTY(bool, soundsOn, SoundsOn, true)
    MORVANE_PROPERTY(bool, beepWhenCaptured, BeepWhenCaptured, false)
    MORVANE_PROPERTY(bool, jumpToLastFrame, JumpToLastFrame, true)
    MORVANE_PROPERTY(bool, inactivityWatchOn, InactivityWatchOn, false)
    MORVANE_PROPERTY(int, inactivityMaximum, InactivityMaximum, 90)
    MORVANE_PROPERTY(int, inactivityElapsed, InactivityElapsed, 0)
    MORVANE_PROPERTY(bool, userIsInactive, UserIsInactive, false)
    MORVANE_PROPERTY(int, currentActiveTab, CurrentActiveTab, Zum::CaptureTab)
    MORVANE_PROPERTY(QString, mainTabsState, MainTabsState, QStringLiteral("captureUIisOn"))
    MORVANE_PROPERTY(bool, montageMode, MontageMode, false)
    MORVANE_PROPERTY(bool, timelineCompact, TimelineCompact, false)
    MORVANE_PROPERTY(bool, timelineInteractive, TimelineInteractive, true)
    MORVANE_PROPERTY(bool, flickInteractive, FlickInteractive, false)
    MORVANE_PROPERTY(bool, rightPanelPinned, RightPanelPinned, true)
    MORVANE_PROPERTY(bool, rightPanelExpanded, RightPanelExpanded, false)
    MORVANE_PROPERTY(bool, layersSettingsOn, LayersSettingsOn, false)
    MORVANE_PROPERTY(bool, printScreenModeOn, PrintScreenModeOn, false)
    MORVANE_PROPERTY(bool, dialogRemainsVisible, DialogRemainsVisible, false)
    MORVANE_PROPERTY(QVariant, hoveredItem, HoveredItem)
    MORVANE_PROPERTY(QVariant, hoveredFrame, HoveredFrame)
    MORVANE_PROPERTY(int, currWinId, CurrWinId, 0)

public:
    using ProjectState::ProjectState;
};
