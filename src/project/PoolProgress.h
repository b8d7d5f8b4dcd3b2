#pragma once

#include <atomic>
#include <memory>
#include <QElapsedTimer>
#include <QString>

class ProgressState;

/// The pool's side of the progress bar and of Cancel for one file operation. The operation calls it from its
/// pool thread; the bar hears of it on the main thread, a few times a second and at every new action.
class PoolProgress : public std::enable_shared_from_this<PoolProgress>
{
public:
    /// `progress` outlives the operation.
    explicit PoolProgress(ProgressState &progress);

    /// A new stretch of `total` steps under a text for the user; an empty text leaves the one that is there.
    void begin(const QString &action, int total);
    void step();
    bool isCancelled() const
    {
        return m_cancelled;
    }

    // Main thread.
    void cancel()
    {
        m_cancelled = true;
    }
    /// What was reported and has not been shown yet is dropped from here on.
    void detach()
    {
        m_attached = false;
    }

private:
    void show(const QString &action, int total, int current);

    ProgressState &m_progress;
    std::atomic_bool m_cancelled = false;
    std::atomic_bool m_attached = true;
    QElapsedTimer m_sinceShown;
    QString m_action;
    int m_total = 0;
    int m_current = 0;
};
