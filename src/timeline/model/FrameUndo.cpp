// Undo and redo of FrameEditing: writing the records, and applying them to the rows.

#include "timeline/model/FrameEditing.h"

#include <QDebug>

using morvane::frameKey;

QVariantMap FrameEditing::snapshot(int action, int row, int to) const
{
    QVariantMap map = get(row, false);
    map.insert(frameKey(Zum::UndoAction), action);
    map.insert(frameKey(Zum::Ingroup), false);
    const bool moves = action == Zum::ActionMove;
    map.insert(frameKey(Zum::KudaGUID), moves ? get(to, false).value(frameKey(Zum::GUID)).toInt() : -1);
    map.insert(frameKey(Zum::KudaPrevGUID),
               moves ? get(to - 1, false).value(frameKey(Zum::GUID)).toInt() : -1);
    return map;
}

void FrameEditing::writeUndo(int action, int row, int to)
{
    m_undo.writeUndo(snapshot(action, row, to));
}

void FrameEditing::writeRedo(int action, int row, int to)
{
    m_undo.writeRedo(snapshot(action, row, to));
}

void FrameEditing::undo()
{
    step(Direction::Undo);
}

void FrameEditing::redo()
{
    step(Direction::Redo);
}

void FrameEditing::step(Direction direction)
{
    if (isBusy()) {
        qDebug("Unable to perform Undo action - model is being used by the Thread");
        return;
    }
    const bool undoes = direction == Direction::Undo;
    if (undoes)
        m_undo.aimAtUndo();
    else
        m_undo.aimAtRedo();
    const UndoStack::Entry entry = m_undo.entry(undoes ? QStringLiteral("undo") : QStringLiteral("redo"));
    if (!entry.valid || !apply(entry, direction))
        return;
    if (undoes)
        m_undo.passUndone();
    else
        m_undo.passRedone();
}

/// False when the record tells of nothing that can be applied. A record whose frame has gone changes nothing.
bool FrameEditing::apply(const UndoStack::Entry &entry, Direction direction)
{
    const bool undoes = direction == Direction::Undo;
    // The order matters: a frame that stood first has no previous GUID, and looking that up repeats the
    // lookup before it.
    const int row = frames().rowOf(entry.guid);
    const int previous = frames().rowOf(entry.previousGuid);
    const int at = previous >= last() ? -1 : previous + 1;
    switch (entry.action) {
        case Zum::ActionModify:
            modifyFrame(entry.section, row, false, false);
            return true;
        case Zum::ActionRemove:
        case Zum::ActionInsert:
            if (undoes == (entry.action == Zum::ActionRemove))
                appendFrame(entry.section, false, at, false, false, true);
            else
                removeRow(row, false, true);
            emit timelineChanged(Zum::ActInsert);
            return true;
        case Zum::ActionMove: {
            int behind = at - 1;
            if (!undoes) {
                behind = frames().rowOf(entry.section.value(frameKey(Zum::KudaPrevGUID)).toInt());
                if (behind >= last())
                    behind = -1;
            }
            moveSingleFrame(row, behind, false, false);
            emit changed();
            return true;
        }
        default:
            qDebug().noquote() << QStringLiteral("Unsupported type of undo %1").arg(entry.action);
            return false;
    }
}

void FrameEditing::dismissUndos(const QModelIndex &, int, int)
{
    m_undo.clear();
}

void FrameEditing::calcLastUndoIndex()
{
    // The stack counts its records itself: its last index can never lag behind.
}
