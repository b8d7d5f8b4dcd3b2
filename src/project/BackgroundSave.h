#pragma once

#include "project/AtomicFile.h"
#include "project/ProjectDocument.h"

#include <optional>
#include <QFutureWatcher>
#include <QObject>
#include <QThreadPool>

/// Writes project files on a thread of its own, so that the main thread waits neither for the text of a long
/// film nor for the disk. One file at a time. While it is written the next one waits, and a still later one
/// takes its place: however fast saves come, each is on the disk, as it is or in a later one, after two
/// writes at most. Main thread.
class BackgroundSave : public QObject
{
    Q_OBJECT

public:
    explicit BackgroundSave(QObject *parent = nullptr);
    /// Waits as finish() does; nobody is told any more.
    ~BackgroundSave() override;

    void save(const QString &path, ProjectDocument document);
    bool isBusy() const
    {
        return m_current.has_value();
    }
    /// Waits until all is written. What came of it has been told when it returns.
    void finish();

signals:
    void saved(const QString &path, const AtomicFile::Result &result);

private:
    struct Save
    {
        QString path;
        ProjectDocument document;
    };

    void start(Save save);
    void endCurrent();

    QThreadPool m_thread;
    QFutureWatcher<AtomicFile::Result> m_watcher;
    /// The path of what is being written.
    std::optional<QString> m_current;
    std::optional<Save> m_next;
};
