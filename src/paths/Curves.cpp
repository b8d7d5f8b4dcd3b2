#include "paths/Curves.h"

Curves::Curves(QObject *parent) : CurvesSelection(parent)
{
    connect(this, &QAbstractItemModel::rowsInserted, this, &Curves::countChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &Curves::countChanged);
    connect(this, &QAbstractItemModel::modelReset, this, [this] { emit countChanged({}, 0, count() - 1); });
    connect(this, &CurvesState::lockedChanged, this, &Curves::interactiveChanged);
    connect(this, &Curves::busyChanged, this, &Curves::interactiveChanged);
    // A drag of a node ends when the mouse leaves it.
    connect(this, &CurvesState::currentIndexChanged, this, [this] { m_history.seal(); });
    connect(this, &CurvesState::storeForUndoChanged, this, [this] { m_history.seal(); });
    // What is left of one stroke must not begin the next.
    connect(this, &CurvesState::handDrawnPointTypeChanged, this, [this] { m_buffer.clear(); });
    connect(this, &CurvesState::smoothValueChanged, this, [this] {
        if (!m_restoring)
            reportEdit();
    });
    connect(&m_fitJob, &morvane::StrokeFitJob::finished, this, &Curves::completed);
}

bool Curves::busy() const
{
    return m_fitJob.isRunning();
}

int Curves::count() const
{
    return int(nodes().size());
}

MPathPoint Curves::get(int ind) const
{
    return isRow(ind) ? nodes()[ind] : MPathPoint();
}

bool Curves::refuseEdit()
{
    if (locked())
        emit layoutIsLocked();
    return locked();
}

bool Curves::refuseGrowth(qsizetype nodeCount) const
{
    const bool tooMany = nodes().size() + nodeCount > morvane::maxPathNodes;
    if (tooMany)
        qWarning("Too many path nodes, limit is %d", morvane::maxPathNodes);
    return tooMany;
}

void Curves::perform(const morvane::PathEdits &edits, int gesture, bool redraw)
{
    if (edits.isEmpty())
        return;
    if (gesture != selectionGesture)
        m_dragShape.clear();
    carryOut(edits);
    if (storeForUndo())
        m_history.push(edits, gesture);
    if (redraw)
        updateRenderPaths();
    nodesChanged();
    reportEdit();
}

void Curves::carryOut(const morvane::PathEdits &edits)
{
    // Rows that change one after the other are announced together.
    int first = -1;
    int last = -1;
    const auto announce = [&] {
        if (first >= 0)
            announceRows(first, last);
        first = last = -1;
    };
    for (const morvane::PathEdit &edit : edits) {
        const bool inserts = edit.action == Zum::ActionInsert;
        const int row = inserts ? edit.index : rowOf(edit.guid(), edit.index);
        if (!(inserts ? row >= 0 && row <= count() : isRow(row))) {
            qWarning("Und/Redo node: index is not okay");
            continue;
        }
        if (edit.action == Zum::ActionModify) {
            MPathPoint node = edit.after;
            node.Ingroup = nodes()[row].Ingroup;
            replaceNode(row, node);
            first = first < 0 ? row : qMin(first, row);
            last = qMax(last, row);
            continue;
        }
        announce();
        if (inserts) {
            MPathPoint node = edit.after;
            node.Ingroup = false;
            insertNode(row, node);
        } else {
            removeNode(row);
        }
    }
    announce();
}

void Curves::nodesChanged()
{
    if (currentIndex() >= count())
        setCurrentIndex(-1);
    renewSelection();
}

void Curves::reportEdit()
{
    emit needSave();
    emit pathHasChanged();
}

void Curves::undo()
{
    if (refuseEdit())
        return;
    if (const auto edits = m_history.takeUndo())
        replay(*edits);
}

void Curves::redo()
{
    if (refuseEdit())
        return;
    if (const auto edits = m_history.takeRedo())
        replay(*edits);
}

void Curves::replay(const morvane::PathEdits &edits)
{
    m_dragShape.clear();
    m_strokeLength = 0;
    carryOut(edits);
    updateRenderPaths();
    nodesChanged();
    reportEdit();
}

void Curves::refresh()
{
    updateRenderPaths();
    if (count() > 0)
        announceRows(0, count() - 1);
    emit layoutAboutToBeChanged();
    emit layoutChanged();
}

void Curves::dataHasChanged(const QModelIndex &, const QModelIndex &)
{
    updateRenderPaths();
    nodesChanged();
    reportEdit();
}

void Curves::stretch(qreal scaleX, qreal scaleY)
{
    m_history.scale(scaleX, scaleY);
    m_dragShape.clear();
    if (count() == 0)
        return;
    for (int row = 0; row < count(); ++row) {
        MPathPoint node = nodes()[row];
        node.scale(scaleX, scaleY);
        replaceNode(row, node);
    }
    announceRows(0, count() - 1);
    updateRenderPaths();
    nodesChanged();
}
