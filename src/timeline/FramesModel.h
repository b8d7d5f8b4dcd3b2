#pragma once

#include "timeline/model/FrameBatches.h"
#include "timeline/PlaybackRun.h"
#include "timeline/Ticker.h"

#include <memory>

/// The frames of the open project: the one list that the scene, the project's file and the jobs work on, and
/// the only source of what a frame holds, which frame is current, what is selected, what plays and what can
/// be undone. Published to the scene as "FramesModel"; lives on the main thread.
///
/// It is put together from layers, one header per concern in timeline/model, so that each can be read alone;
/// the chain is a device, not a line of kinds. This last layer is the playback: it steps currentIndex through
/// the frames of the range that are not hidden, at the pace of `interval`.
class FramesModel : public FrameBatches
{
    Q_OBJECT

public:
    /// What sets the pace: one ticker for the frames, one for the rate that is shown.
    struct Tickers
    {
        std::unique_ptr<Ticker> play;
        std::unique_ptr<Ticker> rate;
    };

    explicit FramesModel(QObject *parent = nullptr);
    explicit FramesModel(Tickers tickers, QObject *parent = nullptr);
    ~FramesModel() override;

    /// Prepares a run over the play range and starts it; a log line says why when it cannot.
    Q_INVOKABLE void play();
    Q_INVOKABLE void stop();
    Q_INVOKABLE void rewind();
    /// One step of the run.
    Q_INVOKABLE void moveIndex();
    /// Samples the frames shown since the last call.
    Q_INVOKABLE void setActualFps();

protected:
    void playbackPrepared(const QList<int> &rows) override;

private:
    void showRow(int row);
    int startRow() const;

    Tickers m_tickers;
    PlaybackRun m_run;
    int m_framesShown = 0;
    /// Cleared by a stop during the preparation.
    bool m_runWanted = false;
};
