#pragma once

#include "paths/PathListModel.h"
#include "shared/PropertyMacros.h"

/// What the scene reads and sets about drawing and editing of paths, one row each. `Curves` gives the rows
/// their meaning; none of them is part of a project file except `smoothValue`.
class CurvesState : public PathListModel
{
    Q_OBJECT

    /// Row of the node under the mouse; -1 for none.
    MORVANE_PROPERTY(int, currentIndex, CurrentIndex, -1)
    /// Size of a node handle in screen units; its half follows.
    MORVANE_PROPERTY(qreal, pointSize, PointSize, 10.0)
    MORVANE_PROPERTY(bool, pointsVisible, PointsVisible, true)
    /// A path was read from the open project.
    MORVANE_PROPERTY(bool, loaded, Loaded, false)
    /// Edits are refused, each with the signal layoutIsLocked().
    MORVANE_PROPERTY(bool, locked, Locked, false)
    /// Horizontal scale from the canvas to the screen.
    MORVANE_PROPERTY(qreal, scaleFactorH, ScaleFactorH, 1.0)
    MORVANE_PROPERTY(bool, active, Active, false)
    /// The next drag adds a rectangle.
    MORVANE_PROPERTY(bool, addrectmode, Addrectmode, false)
    /// 0 none, 1 draw by hand, 2 add nodes by clicks.
    MORVANE_PROPERTY(int, addNewNodeMode, AddNewNodeMode, 0)
    /// Command of the nodes that a stroke adds: 0 no stroke yet, 1 drawing.
    MORVANE_PROPERTY(int, handDrawnPointType, HandDrawnPointType, 0)
    /// Hundredths of a canvas unit by which a fitted curve may miss the stroke. The screen offers 50 to 500;
    /// a fit uses the nearest value in that range.
    MORVANE_PROPERTY(int, smoothValue, SmoothValue, 300)
    /// Edits are recorded for undo.
    MORVANE_PROPERTY(bool, storeForUndo, StoreForUndo, true)

public:
    using PathListModel::PathListModel;
};
