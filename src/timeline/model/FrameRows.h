#pragma once

#include "timeline/FrameList.h"

#include <QAbstractListModel>

/// First layer of FramesModel: the rows themselves, what delegates read of them, and how views are told when
/// rows come, go and move. Knows nothing of selection, undo or playback. Main thread only.
class FrameRows : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int framesCount READ framesCount NOTIFY countChanged)
    Q_PROPERTY(bool loaded READ loaded NOTIFY loadedChanged)

public:
    explicit FrameRows(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    /// The writer of frame fields. True, with dataChanged, for every role that can be written, also when the
    /// value is of the wrong type and was left out.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QHash<int, QByteArray> roleNames() const override;

    int framesCount() const
    {
        return m_frames.count();
    }
    /// False while a project is being filled.
    bool loaded() const
    {
        return m_loaded;
    }

    /// Read access for those who walk all rows. The row must exist.
    const Frame &frameAt(int row) const
    {
        return m_frames.at(row);
    }
    bool isRow(int row) const
    {
        return m_frames.contains(row);
    }
    const FrameList &frames() const
    {
        return m_frames;
    }

    Q_INVOKABLE int last() const
    {
        return m_frames.count() - 1;
    }
    Q_INVOKABLE void setValue(int row, int role, const QVariant &value);
    /// The frame map of a row; the map of no frame while not loaded or when there is no such row.
    Q_INVOKABLE QVariantMap get(int indx, bool compact = true) const;
    Q_INVOKABLE QString role(int enumValue) const;
    /// Tells the views that the rows from a to b have to be read again.
    Q_INVOKABLE void refresh(int a, int b);

    /// Brackets a long change for which the views are disconnected: between the two calls rows come and go
    /// without being announced one by one. Calls do not nest; a second begin is ignored.
    void beginFramesReset();
    void endFramesReset();
    bool isResetting() const
    {
        return m_resetting;
    }
    /// Goes up whenever rows or what their images show changes; tells whether a snapshot is still true.
    quint64 revision() const
    {
        return m_revision;
    }

signals:
    void countChanged(QModelIndex parent, int first, int last);
    void loadedChanged(QModelIndex parent, int first, int last);
    /// A change that makes the project dirty.
    void changed();

protected:
    FrameList &frameList()
    {
        return m_frames;
    }
    void storeLoaded(bool loaded)
    {
        m_loaded = loaded;
    }
    /// With `announce` false the views learn of the row only by what the caller emits afterwards.
    void insertFrameRow(int row, const Frame &frame, bool announce);
    void removeFrameRow(int row);
    void removeAllFrameRows();
    /// The frame ends up at row `to`, which is also the destination that the views are told.
    void moveFrameRow(int from, int to);
    /// dataChanged for the rows, then layoutChanged; silent during a reset.
    void announceRows(int first, int last, LayoutChangeHint hint);
    void announceData(int first, int last, const QList<int> &roles = {});

private:
    void shiftPersistentRows(int fromRow, int by);
    void swapPersistentRows(int a, int b);

    FrameList m_frames;
    quint64 m_revision = 0;
    bool m_loaded = false;
    bool m_resetting = false;
};
