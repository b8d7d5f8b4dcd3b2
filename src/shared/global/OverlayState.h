#pragma once

#include "shared/global/GeometryState.h"

#include <QColor>

/// Shared state of the program: helper lines over the picture.
class OverlayState : public GeometryState
{
    Q_OBJECT

    MORVANE_PROJECT_PROPERTY(bool, marginsOn, MarginsOn, false)
    MORVANE_PROJECT_PROPERTY(qreal, marginsOpacity, MarginsOpacity, 0.8)
    MORVANE_PROJECT_PROPERTY(bool, gridOn, GridOn, false)
    MORVANE_PROJECT_PROPERTY(qreal, gridOpacity, GridOpacity, 0.8)
    MORVANE_PROJECT_PROPERTY(int, gridVStep, GridVStep, 100)
    MORVANE_PROJECT_PROPERTY(int, gridHStep, GridHStep, 100)
    MORVANE_PROJECT_PROPERTY(bool, ruleOfThirdsGridOn, RuleOfThirdsGridOn, false)
    MORVANE_PROJECT_PROPERTY(qreal, thirdsGridOpacity, ThirdsGridOpacity, 0.8)
    MORVANE_PROJECT_PROPERTY(bool, guidesOn, GuidesOn, false)
    MORVANE_PROJECT_PROPERTY(qreal, guidesOpacity, GuidesOpacity, 0.8)
    MORVANE_PROPERTY(QColor, guidesColor, GuidesColor)
    MORVANE_PROJECT_PROPERTY(QColor, pathColor, PathColor, 0x33, 0x96, 0xff)
    MORVANE_PROPERTY(bool, pointsVisible, PointsVisible, true)
    MORVANE_PROJECT_PROPERTY(bool, crossOn, CrossOn, false)
    MORVANE_PROJECT_PROPERTY(bool, wideCross, WideCross, false)
    MORVANE_PROJECT_PROPERTY(qreal, sightOpacity, SightOpacity, 0.8)
    MORVANE_PROJECT_PROPERTY(bool, safeAreaOn, SafeAreaOn, false)
    MORVANE_PROPERTY(bool, oldSafeAreaOn, OldSafeAreaOn, false)
    MORVANE_PROJECT_PROPERTY(qreal, safeAreaOpacity, SafeAreaOpacity, 0.8)
    MORVANE_PROJECT_PROPERTY(qreal, frameBorderOpacity, FrameBorderOpacity, 0.8)
    MORVANE_PROJECT_PROPERTY(bool, techInfoOn, TechInfoOn, true)

public:
    using GeometryState::GeometryState;
};
