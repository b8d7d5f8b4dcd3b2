#pragma once

#include "paths/MPathPoint.h"

#include <QFutureWatcher>
#include <QList>
#include <QObject>

#include <optional>
#include <stop_token>

namespace morvane {

/// The nodes of a stroke as it was, and the curve that shall stand in its place.
struct StrokeFit
{
    QList<MPathPoint> stroke;
    QList<MPathPoint> curve;
};

/// Fits a stroke in place: moves it by half a line width and replaces it by cubic segments. `smoothValue` is
/// the error in hundredths of a canvas unit.
StrokeFit fitStroke(const QList<MPathPoint> &stroke, int smoothValue, const std::stop_token &stop = {});

/// Runs one fit at a time on the global thread pool, on a copy of the stroke. Main thread only.
class StrokeFitJob : public QObject
{
    Q_OBJECT

public:
    explicit StrokeFitJob(QObject *parent = nullptr);
    /// Tells the fit to stop and waits for it.
    ~StrokeFitJob() override;

    /// Must not be called while a fit runs.
    void start(const QList<MPathPoint> &stroke, int smoothValue);
    /// From start() until the outcome is taken or dropped.
    bool isRunning() const;
    /// What the running fit will bring is not wanted any more; it is told to stop.
    void abandon();
    /// The outcome of a fit that has finished, once; nothing if it was abandoned.
    std::optional<StrokeFit> takeOutcome();

signals:
    /// Time to take the outcome; also emitted for an abandoned fit.
    void finished();

private:
    QFutureWatcher<StrokeFit> m_watcher;
    std::stop_source m_stop;
    bool m_running = false;
    int m_generation = 0;
    int m_startedGeneration = 0;
};

} // namespace morvane
