#pragma once

#include <QCache>
#include <QImage>
#include <QString>
#include <QStringList>

/// Pictures by key within a budget of bytes, each with the path of the file that it was made from: frames of
/// two folders may have the same name. On one thread at a time.
class MemoryCache
{
public:
    struct Entry
    {
        QImage image;
        QString path;
    };

    /// Null when there is none. Makes the entry the most recently used one.
    const Entry *find(const QString &key) const
    {
        return m_entries.object(key);
    }
    bool contains(const QString &key, const QString &path) const
    {
        const Entry *entry = m_entries.object(key);
        return entry && entry->path == path;
    }
    bool isEmpty() const
    {
        return m_entries.isEmpty();
    }
    QStringList keys() const
    {
        return m_entries.keys();
    }
    /// Whether a picture of that cost leaves some of the budget over.
    bool hasRoomFor(qint64 cost) const
    {
        return m_entries.maxCost() > m_entries.totalCost() + cost;
    }
    /// False when the cost is above the budget; an entry of that key is gone then.
    bool insert(const QString &key, const Entry &entry, qint64 cost)
    {
        return m_entries.insert(key, new Entry(entry), cost);
    }
    bool remove(const QString &key)
    {
        return m_entries.remove(key);
    }
    void clear()
    {
        m_entries.clear();
    }
    qint64 maxBytes() const
    {
        return m_entries.maxCost();
    }
    /// Drops the least recently used entries until the rest fits.
    void setMaxBytes(qint64 bytes)
    {
        m_entries.setMaxCost(bytes);
    }
    /// Share of the budget in use; something is shown as soon as there is something: a plain 0 reads as 0.2.
    double usedPercent() const;

private:
    static constexpr int firstMaxBytes = 100;

    QCache<QString, Entry> m_entries{firstMaxBytes};
};
