#pragma once

#include "timeline/BatchRunner.h"
#include "timeline/model/RangeState.h"

/// Third layer of FramesModel: what is going on with the frames, a batch action or a playback, which keeps
/// others out of the model, and the progress of it.
class ActionState : public RangeState
{
    Q_OBJECT
    /// A Zum::ActTypes value, ActNoAction when idle.
    Q_PROPERTY(int currentAction READ currentAction NOTIFY currentActionChanged)
    Q_PROPERTY(bool threading READ threading NOTIFY threadingChanged)
    Q_PROPERTY(QString progressAction READ progressAction NOTIFY progressActionChanged)
    Q_PROPERTY(int progressTotal READ progressTotal NOTIFY progressTotalChanged)
    Q_PROPERTY(int progressCurrent READ progressCurrent NOTIFY progressCurrentChanged)
    Q_PROPERTY(bool playing READ playing NOTIFY playingChanged)
    Q_PROPERTY(bool paused READ paused NOTIFY pausedChanged)

public:
    explicit ActionState(QObject *parent = nullptr);

    int currentAction() const
    {
        return m_batch.currentAction();
    }
    bool threading() const
    {
        return !m_batch.isIdle();
    }
    QString progressAction() const
    {
        return m_batch.progressAction();
    }
    int progressTotal() const
    {
        return m_batch.progressTotal();
    }
    int progressCurrent() const
    {
        return m_batch.progressCurrent();
    }
    bool playing() const
    {
        return m_playing;
    }
    bool paused() const
    {
        return m_paused;
    }

    /// For tests: 0 makes a batch take one step a turn of the event loop.
    void setBatchSliceMs(int milliseconds)
    {
        m_batch.setSliceMs(milliseconds);
    }

    /// Ends a chain of steps after the one that runs; what is done stays done.
    Q_INVOKABLE void stopThreadAction();

signals:
    void currentActionChanged();
    void threadingChanged();
    void progressActionChanged(QString action);
    void progressTotalChanged(int total);
    void progressCurrentChanged(int current);
    void playingChanged();
    void pausedChanged();

    /// Around a model reset that the views must sit out.
    void disconnectModel();
    void connectModel();
    void startWork(int action);
    void delayTrigger();

protected:
    BatchRunner &batch()
    {
        return m_batch;
    }
    const BatchRunner &batch() const
    {
        return m_batch;
    }
    bool isBusy() const
    {
        return !m_batch.isIdle();
    }
    void storePlaying(bool playing)
    {
        m_playing = playing;
    }
    void storePaused(bool paused)
    {
        m_paused = paused;
    }

private:
    BatchRunner m_batch;
    bool m_playing = false;
    bool m_paused = false;
};
