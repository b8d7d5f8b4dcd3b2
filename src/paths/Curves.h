#pragma once

#include "paths/CurvesSelection.h"
#include "paths/PathEdits.h"
#include "paths/PathHistory.h"
#include "paths/PathStringCodec.h"
#include "paths/StoredPath.h"
#include "paths/StrokeBuffer.h"
#include "paths/StrokeFitJob.h"

/// The project's vector mask or guide path, as the scene knows it under the name "CurvesModel": the nodes as
/// a list model, what is drawn of them, the selection, editing with undo, and fitting of drawn strokes.
///
/// Edits on a locked model do nothing but emit layoutIsLocked(). Numbers that are not finite and nodes beyond
/// the limit are refused with a log line; coordinates are kept within the limits of MPathPoint.h. Rows out of
/// range are ignored. One slot call is one undo step.
///
/// Lives on the main thread. A fit runs on the global thread pool on a copy of the stroke and is put in place
/// on the main thread; it is dropped if the stroke has changed in between.
class Curves : public CurvesSelection
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(bool busy READ busy NOTIFY busyChanged)

public:
    explicit Curves(QObject *parent = nullptr);

    /// A fit runs.
    bool busy() const;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

    // For the project file and for paths in files of their own. None of these is an edit: they work on a
    // locked model, are not recorded, and do not say that there is something to save.

    /// Puts a project's path in place of the model's. Smoothing is taken in any case; a path that is refused
    /// leaves the nodes as they are.
    morvane::PathLoadResult restorePath(const StoredPath &stored);
    StoredPath storedPath() const;
    morvane::PathLoadResult restoreRecords(const QVariantList &records);
    QVariantList pathRecords() const;
    /// Back to the start, for a project that closes.
    void resetPath();

public slots:
    int count() const;
    /// A node with GUID 0 for a row out of range.
    MPathPoint get(int ind) const;

    /// Adds a node behind the row `insertAfter`, at the end for -1. Move and line are at (x, y); curves take
    /// their handles from v1 on, and their end too, unless it is left at zero: then it is (x, y). Nodes added
    /// at the end with `update` belong to the stroke that smoothOut() fits; a move begins a new stroke.
    void newPoint(int type, qreal x, qreal y, bool update = true, int insertAfter = -1, qreal v1 = 0.0,
                  qreal v2 = 0.0, qreal v3 = 0.0, qreal v4 = 0.0, qreal v5 = 0.0, qreal v6 = 0.0);
    /// The closed outline of a rectangle as a new subpath; one without any extent is ignored.
    void newRect(qreal x1, qreal y1, qreal x2, qreal y2);
    /// Writes V1 to V6, IX, IY, Store, Ingroup or Id of a node. A new command (Id) keeps the end point.
    void updateData(int ind, qreal value, int role, bool updRenderPaths = true);
    /// Moves the end point (XandY) or writes the pair of V fields that the role names. While the node is the
    /// one under the mouse, calls in a row are one undo step.
    void updatePos(int ind, qreal x, qreal y, int role);
    /// Adds a node with the same end point behind this one, so that the picture does not change.
    void duplicatePoint(int indx);
    /// Removes the node under the mouse; the whole selection if that node is part of it or there is none.
    void removePoint();
    void clearAll();
    /// The selected nodes take the x (vertical) or y (horizontal) of the one that was selected first.
    void lineupVertical();
    void lineupHorizontal();
    /// Moves the selection so that the top left corner of its bounds is at (x, y).
    void moveSelectdPoints(qreal x, qreal y);
    /// Scales the selection about that corner to the given size; less than one unit counts as one.
    void deformSelectdPoints(qreal rectWidth, qreal rectHeight);
    /// Start of a drag of the selection: deformations are measured from the shape it has now, and moves and
    /// deformations are one undo step until the selection changes or anything else is edited.
    void saveSelected();
    void undo();
    void redo();

    /// Draws everything anew and tells the views that all rows may have changed.
    void refresh();
    /// Draws anew and reports a change of rows that was made through the model's data.
    void dataHasChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight);

    /// One mouse position of a stroke; every fourth becomes a node.
    void appendToBuffer(qreal x, qreal y);
    /// Asks for the fit of the stroke just finished, if it has more than five nodes and no fit runs. `len` is
    /// not used.
    void smoothOut(int len = 0);
    /// Fits the last `len` nodes at once, in the caller's time. False if there was nothing to fit.
    bool _optimize(int len = 0);
    /// Puts a finished fit in place.
    void completed();
    /// Selected curves become lines; only those of the subpath under the mouse, if there is one.
    void curveToLine();

signals:
    void countChanged(const QModelIndex &parent, int first, int last);
    void busyChanged();
    /// An edit was refused because the model is locked.
    void layoutIsLocked();
    void unableToLoadSvg();
    /// These two frame a change of the whole model.
    void disconnectModel();
    void connectModel();
    /// Whether edits are taken has changed: `locked` or `busy`.
    void interactiveChanged();
    /// The project has something new to save.
    void needSave();
    void pathHasChanged();

protected:
    void stretch(qreal scaleX, qreal scaleY) override;

private:
    /// The gesture number of a drag of the selection; a node's drag has the node's GUID.
    static constexpr int selectionGesture = -1;

    bool refuseEdit();
    bool refuseGrowth(qsizetype nodeCount) const;
    void perform(const morvane::PathEdits &edits, int gesture = morvane::PathHistory::NoGesture,
                 bool redraw = true);
    void carryOut(const morvane::PathEdits &edits);
    void replay(const morvane::PathEdits &edits);
    void replacePath(const QList<MPathPoint> &nodes);
    void changeNode(int row, const MPathPoint &changed, bool redraw = true);
    void lineup(Zum::Orientation orientation);
    bool dragsSelection() const;
    QList<MPathPoint> nodesAt(const QList<int> &rows) const;
    QList<MPathPoint> lastNodes(int len) const;
    bool putInPlace(const morvane::StrokeFit &fit);
    void nodesChanged();
    void reportEdit();

    morvane::PathHistory m_history;
    morvane::StrokeBuffer m_buffer;
    morvane::StrokeFitJob m_fitJob;
    /// Nodes added since the last fit or the start of a stroke.
    int m_strokeLength = 0;
    bool m_restoring = false;
    /// The selected nodes at the start of a drag, and which they were.
    QList<MPathPoint> m_dragShape;
    QList<int> m_dragGuids;
};
