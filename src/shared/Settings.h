#pragma once

#include <memory>
#include <QObject>
#include <QSettings>
#include <QVariant>

/// The store of what belongs to the user and not to a project. Main thread only.
///
/// A file that cannot be parsed is set aside under its own name with ".damaged" behind it, and the program
/// goes on with defaults; one that cannot be written is read, and what is changed lasts for this run.
class Settings : public QObject
{
    Q_OBJECT

public:
    enum class Health {
        Good,
        ReadOnly,
        Damaged,
    };

    /// The store of the current user.
    explicit Settings(QObject *parent = nullptr);
    /// The store in a file of this path.
    explicit Settings(const QString &filePath, QObject *parent = nullptr);

    Health health() const
    {
        return m_health;
    }
    /// Where a damaged file was set aside; empty when it was not.
    QString damagedCopyPath() const
    {
        return m_damagedCopyPath;
    }
    QString filePath() const;

    /// The stored value, else `fallback`. The file keeps numbers and truth values as text; they come back as
    /// what they were when `fallback` is one of that kind.
    QVariant value(const QString &key, const QVariant &fallback = {}) const;
    void setValue(const QString &key, const QVariant &value);
    bool contains(const QString &key) const;
    void remove(const QString &key);
    /// Removes every key.
    void clear();
    /// Writes what is pending; the result tells whether the store took it.
    bool sync();

    /// Typed reads: a stored value of another kind counts as absent.
    bool boolean(const QString &key, bool fallback) const;
    int integer(const QString &key, int fallback) const;
    /// The same limited to a range.
    int integer(const QString &key, int fallback, int lowest, int highest) const;

    /// Sets a key of a group, its name cleaned of what a key does not bear; a name with nothing left of it
    /// sets nothing.
    void setGroupValue(const QString &group, const QString &key, const QVariant &value);
    /// Removes a key of a group, given as it was set or as groupValues() has it.
    void removeGroupValue(const QString &group, const QString &key);
    /// The keys of a group with their values; a map value is taken over only if it holds a "name".
    QVariantMap groupValues(const QString &group) const;
    void clearGroup(const QString &group);

private:
    void open(const QString &filePath);

    std::unique_ptr<QSettings> m_store;
    QString m_damagedCopyPath;
    Health m_health = Health::Good;
};
