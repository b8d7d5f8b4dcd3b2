#include "timeline/BatchRunner.h"

#include "shared/Zum.h"

#include <QDebug>
#include <QtConcurrent>
#include <utility>

BatchRunner::BatchRunner(QObject *parent) : QObject(parent), m_action(Zum::ActNoAction)
{
    m_nextSlice.setSingleShot(true);
    m_nextSlice.setInterval(0);
    connect(&m_nextSlice, &QTimer::timeout, this, &BatchRunner::runSlice);
    connect(&m_watcher, &QFutureWatcher<void>::finished, this, &BatchRunner::finish);
}

BatchRunner::~BatchRunner()
{
    m_watcher.disconnect(this);
    m_watcher.waitForFinished();
}

bool BatchRunner::isIdle() const
{
    return m_action == Zum::ActNoAction;
}

bool BatchRunner::begin(int action)
{
    if (!isIdle() || isPoolBusy()) {
        qDebug().noquote() << QStringLiteral(
                                  "One action still running: %1 or thread is busy: %2. "
                                  "Cannot start action: %3")
                                  .arg(m_action)
                                  .arg(int(isPoolBusy()))
                                  .arg(action);
        return false;
    }
    m_keepGoing = true;
    m_action = action;
    emit currentActionChanged();
    return true;
}

bool BatchRunner::beginSteps(int action, const QString &label, int total)
{
    if (!isIdle() || isPoolBusy()) {
        qDebug().noquote() << QStringLiteral("doRemoveFrames: thread is busy '%1'").arg(m_action);
        return false;
    }
    setLabel(label);
    setProgress(total, 0);
    return begin(action);
}

void BatchRunner::runSliced(int total, Step step, Work done)
{
    m_step = std::move(step);
    m_done = std::move(done);
    m_position = 0;
    m_positions = total;
    m_countsProgress = false;
    m_nextSlice.start();
}

void BatchRunner::runSteps(Step step, Work done)
{
    runSliced(m_total, std::move(step), std::move(done));
    m_countsProgress = true;
}

void BatchRunner::runInPool(Work work, Work done)
{
    m_done = std::move(done);
    m_watcher.setFuture(QtConcurrent::run(std::move(work)));
}

void BatchRunner::reset()
{
    if (!isIdle()) {
        m_action = Zum::ActNoAction;
        emit currentActionChanged();
    }
    setLabel(QString());
    setProgress(0, 0);
}

void BatchRunner::stop()
{
    if (!isIdle())
        m_keepGoing = false;
}

void BatchRunner::abandon()
{
    m_nextSlice.stop();
    m_step = nullptr;
    m_done = nullptr;
    m_keepGoing = true;
    reset();
}

void BatchRunner::runSlice()
{
    QElapsedTimer elapsed;
    elapsed.start();
    while (runOne()) {
        if (elapsed.elapsed() >= m_sliceMs) {
            m_nextSlice.start();
            return;
        }
    }
}

/// One step, or the end of the run: true when there is more to do.
bool BatchRunner::runOne()
{
    if (m_position < m_positions) {
        // The step may abandon this run: what is called must outlive the members.
        const Step step = m_step;
        const bool goOn = step && step(m_position);
        if (!m_step)
            return false;
        ++m_position;
        if (m_countsProgress)
            ++m_current;
        if (goOn && m_position < m_positions && (m_keepGoing || !m_countsProgress)) {
            if (m_countsProgress)
                emit progressCurrentChanged(m_current);
            return bool(m_step);
        }
    }
    m_step = nullptr;
    finish();
    return false;
}

void BatchRunner::finish()
{
    const Work done = std::exchange(m_done, nullptr);
    if (done)
        done();
}

void BatchRunner::setProgress(int total, int current)
{
    const bool currentMoves = current != m_current;
    const bool totalMoves = total != m_total;
    m_current = current;
    m_total = total;
    if (currentMoves)
        emit progressCurrentChanged(m_current);
    if (totalMoves)
        emit progressTotalChanged(m_total);
}

void BatchRunner::setLabel(const QString &label)
{
    if (label == m_label)
        return;
    m_label = label;
    emit progressActionChanged(m_label);
}
