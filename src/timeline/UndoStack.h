#pragma once

#include <QList>
#include <QObject>
#include <QVariantMap>

/// The records of what can be undone, oldest first, and the cursor that names the one which the next undo
/// uses. A record is a map with the sections "undo" and "redo", each a frame map of its own. Main thread
/// only.
class UndoStack : public QObject
{
    Q_OBJECT

public:
    static constexpr int capacity = 300;

    using QObject::QObject;

    int count() const
    {
        return int(m_records.size());
    }
    int last() const
    {
        return count() - 1;
    }
    /// From -1 to one past the last record.
    int current() const
    {
        return m_current;
    }

    /// First half of a record: drops the records above the cursor and moves the cursor to the new one.
    /// A snapshot without a GUID is logged and left out.
    void writeUndo(const QVariantMap &snapshot);
    /// Second half: becomes the "redo" section of the newest record.
    void writeRedo(const QVariantMap &snapshot);
    /// Empties the stack; the cursor stays until the next record sets it.
    void clear();

    /// Put the cursor where an undo or a redo looks for its record.
    void aimAtUndo();
    void aimAtRedo();
    /// Move the cursor on after the record was applied.
    void passUndone();
    void passRedone();

    /// The record's section under the cursor, ready to be applied.
    struct Entry
    {
        bool valid = false;
        int action = -1;
        int guid = -1;
        int previousGuid = -1;
        QVariantMap section;
    };
    /// Logs why when there is none.
    Entry entry(const QString &sectionName) const;

signals:
    void countChanged();
    void currentChanged();

private:
    void setCurrent(int current);

    QList<QVariantMap> m_records;
    int m_current = 0;
};
