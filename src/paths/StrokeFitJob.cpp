#include "paths/StrokeFitJob.h"

#include "paths/CurveFitter.h"

#include <QtConcurrent>

namespace morvane {

namespace {

constexpr double offsetAngleDegrees = 4.0;
constexpr double offsetWidth = 1.0;

} // namespace

StrokeFit fitStroke(const QList<MPathPoint> &stroke, int smoothValue, const std::stop_token &stop)
{
    QList<QPointF> points;
    points.reserve(stroke.size());
    for (const MPathPoint &node : stroke)
        points.append(node.end());
    StrokeFit fit{stroke, {}};
    CurveFitter().fitWithOffset(&fit.curve, points, smoothValue / 100.0, offsetAngleDegrees, offsetWidth,
                                stop);
    return fit;
}

StrokeFitJob::StrokeFitJob(QObject *parent) : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcherBase::finished, this, &StrokeFitJob::finished);
}

StrokeFitJob::~StrokeFitJob()
{
    m_stop.request_stop();
    m_watcher.waitForFinished();
}

void StrokeFitJob::start(const QList<MPathPoint> &stroke, int smoothValue)
{
    Q_ASSERT(!m_running);
    m_running = true;
    m_stop = std::stop_source();
    m_startedGeneration = m_generation;
    m_watcher.setFuture(QtConcurrent::run(
        [stroke, smoothValue, stop = m_stop.get_token()] { return fitStroke(stroke, smoothValue, stop); }));
}

bool StrokeFitJob::isRunning() const
{
    return m_running;
}

void StrokeFitJob::abandon()
{
    ++m_generation;
    m_stop.request_stop();
}

std::optional<StrokeFit> StrokeFitJob::takeOutcome()
{
    if (!m_running || !m_watcher.isFinished())
        return std::nullopt;
    m_running = false;
    if (m_startedGeneration != m_generation)
        return std::nullopt;
    return m_watcher.result();
}

} // namespace morvane
