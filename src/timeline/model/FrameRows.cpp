#include "timeline/model/FrameRows.h"

#include "shared/Zum.h"

#include <QDebug>

FrameRows::FrameRows(QObject *parent) : QAbstractListModel(parent)
{
    connect(this, &QAbstractItemModel::rowsInserted, this, &FrameRows::countChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &FrameRows::countChanged);
}

int FrameRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_frames.count();
}

QVariant FrameRows::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !isRow(index.row()))
        return {};
    return m_frames.at(index.row()).value(role);
}

bool FrameRows::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const int row = index.row();
    if (!isRow(row))
        return false;
    if (role == Zum::GUID) {
        bool ok = false;
        const int guid = morvane::toInteger(value, &ok);
        if (ok && guid != m_frames.at(row).guid())
            m_frames.setGuid(row, guid);
        if (!ok && morvane::holdsInteger(value))
            qDebug("setData: Error decoding GUID");
    } else if (m_frames.at(row).setValue(role, value) == Frame::Write::NoSuchRole) {
        return false;
    }
    if (role == Zum::CapFull || role == Zum::RefFull || role == Zum::Mirrored)
        ++m_revision;
    announceData(row, row);
    return true;
}

QHash<int, QByteArray> FrameRows::roleNames() const
{
    return morvane::frameRoleNames();
}

void FrameRows::setValue(int row, int role, const QVariant &value)
{
    if (setData(index(row), value, role))
        emit changed();
}

QVariantMap FrameRows::get(int indx, bool compact) const
{
    if (!m_loaded || !isRow(indx))
        return Frame::emptyMap();
    const int previous = indx > 0 ? m_frames.at(indx - 1).guid() : Frame::noGuid;
    return m_frames.at(indx).toMap(previous, compact);
}

QString FrameRows::role(int enumValue) const
{
    return morvane::frameKey(enumValue);
}

void FrameRows::refresh(int a, int b)
{
    if (isRow(a) && isRow(b))
        announceRows(a, b, VerticalSortHint);
}

void FrameRows::beginFramesReset()
{
    if (m_resetting)
        return;
    m_resetting = true;
    beginResetModel();
}

void FrameRows::endFramesReset()
{
    if (!m_resetting)
        return;
    m_resetting = false;
    endResetModel();
}

void FrameRows::insertFrameRow(int row, const Frame &frame, bool announce)
{
    const bool tellViews = announce && !m_resetting;
    if (tellViews)
        beginInsertRows(QModelIndex(), row, row);
    m_frames.insert(row, frame);
    ++m_revision;
    if (tellViews)
        endInsertRows();
    else if (!m_resetting)
        shiftPersistentRows(row, 1);
}

void FrameRows::removeFrameRow(int row)
{
    if (!m_resetting)
        beginRemoveRows(QModelIndex(), row, row);
    m_frames.remove(row);
    ++m_revision;
    if (!m_resetting)
        endRemoveRows();
}

void FrameRows::removeAllFrameRows()
{
    if (!m_resetting)
        beginRemoveRows(QModelIndex(), 0, last());
    m_frames.clear();
    ++m_revision;
    if (!m_resetting)
        endRemoveRows();
}

void FrameRows::moveFrameRow(int from, int to)
{
    ++m_revision;
    if (m_resetting) {
        m_frames.move(from, to);
        return;
    }
    if (qAbs(from - to) == 1) {
        emit layoutAboutToBeChanged({}, VerticalSortHint);
        m_frames.move(from, to);
        swapPersistentRows(from, to);
        announceData(from, to);
        emit layoutChanged({}, VerticalSortHint);
        return;
    }
    beginMoveRows(QModelIndex(), from, from, QModelIndex(), to);
    m_frames.move(from, to);
    endMoveRows();
    if (to > from) {
        // A destination is the row to land before, so for a move down the views now believe the frame to be
        // one row above where it is.
        emit layoutAboutToBeChanged({}, VerticalSortHint);
        swapPersistentRows(to - 1, to);
        emit layoutChanged({}, VerticalSortHint);
    }
}

void FrameRows::announceRows(int first, int last, LayoutChangeHint hint)
{
    if (m_resetting)
        return;
    announceData(first, last);
    emit layoutAboutToBeChanged({}, hint);
    emit layoutChanged({}, hint);
}

void FrameRows::announceData(int first, int last, const QList<int> &roles)
{
    const int top = qMin(first, last);
    const int bottom = qMax(first, last);
    if (!m_resetting && isRow(top) && isRow(bottom))
        emit dataChanged(index(top), index(bottom), roles);
}

void FrameRows::shiftPersistentRows(int fromRow, int by)
{
    QModelIndexList from;
    QModelIndexList to;
    const QModelIndexList held = persistentIndexList();
    for (const QModelIndex &old : held) {
        if (old.row() < fromRow)
            continue;
        from.append(old);
        to.append(index(old.row() + by));
    }
    changePersistentIndexList(from, to);
}

void FrameRows::swapPersistentRows(int a, int b)
{
    QModelIndexList from;
    QModelIndexList to;
    const QModelIndexList held = persistentIndexList();
    for (const QModelIndex &old : held) {
        if (old.row() != a && old.row() != b)
            continue;
        from.append(old);
        to.append(index(old.row() == a ? b : a));
    }
    changePersistentIndexList(from, to);
}
