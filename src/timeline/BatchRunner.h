#pragma once

#include <functional>
#include <QElapsedTimer>
#include <QFutureWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

/// Runs one batch action at a time and keeps its name and progress.
///
/// Work on values goes to the global thread pool; what changes the model is applied on the main thread, in
/// order, a few milliseconds at a time, so that the window stays alive however long the list is. The owner
/// decides what the steps do; while an action is set it keeps everybody else out of the model.
class BatchRunner : public QObject
{
    Q_OBJECT

public:
    /// Handles one position; false ends the run there.
    using Step = std::function<bool(int position)>;
    using Work = std::function<void()>;

    explicit BatchRunner(QObject *parent = nullptr);
    ~BatchRunner() override;

    /// A Zum::ActTypes value, ActNoAction when idle.
    int currentAction() const
    {
        return m_action;
    }
    bool isIdle() const;
    /// Whether work given to the pool has not ended yet; it may outlive its action by a moment.
    bool isPoolBusy() const
    {
        return m_watcher.isRunning();
    }
    bool keepGoing() const
    {
        return m_keepGoing;
    }
    QString progressAction() const
    {
        return m_label;
    }
    int progressTotal() const
    {
        return m_total;
    }
    int progressCurrent() const
    {
        return m_current;
    }

    /// Takes the model for an action. Refuses with a log line while another runs.
    bool begin(int action);
    /// The same for a chain of steps, which shows its label and counts its progress.
    bool beginSteps(int action, const QString &label, int total);

    /// Calls step for 0 .. total - 1 in slices from the event loop, then done. `total` may be 0.
    void runSliced(int total, Step step, Work done);
    /// The same for a chain: stop() ends it after the running step, and each step counts as progress.
    void runSteps(Step step, Work done);
    /// Runs work on the pool, then done here. Work may touch nothing but values of its own.
    void runInPool(Work work, Work done);

    /// Back to no action and no progress, each with its signal.
    void reset();
    /// Ends a chain after the running step.
    void stop();
    /// Drops whatever is under way; neither its remaining steps nor its end are called any more.
    void abandon();

    /// How long the steps of one turn of the event loop may take; 0 makes it one step a turn.
    void setSliceMs(int milliseconds)
    {
        m_sliceMs = milliseconds;
    }

signals:
    void currentActionChanged();
    void progressActionChanged(QString action);
    void progressTotalChanged(int total);
    void progressCurrentChanged(int current);

private:
    void runSlice();
    bool runOne();
    void finish();
    void setProgress(int total, int current);
    void setLabel(const QString &label);

    QFutureWatcher<void> m_watcher;
    QTimer m_nextSlice;
    Step m_step;
    Work m_done;
    QString m_label;
    int m_action;
    int m_total = 0;
    int m_current = 0;
    int m_position = 0;
    int m_positions = 0;
    int m_sliceMs = 8;
    bool m_countsProgress = false;
    bool m_keepGoing = true;
};
