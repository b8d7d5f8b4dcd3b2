#include "project/PoolProgress.h"

#include "shared/ProgressState.h"

namespace {
constexpr int showEveryMs = 40;
}

PoolProgress::PoolProgress(ProgressState &progress) : m_progress(progress)
{
}

void PoolProgress::begin(const QString &action, int total)
{
    if (!action.isEmpty())
        m_action = action;
    m_total = total;
    m_current = 0;
    m_sinceShown.start();
    show(m_action, m_total, m_current);
}

void PoolProgress::step()
{
    ++m_current;
    if (m_sinceShown.isValid() && m_sinceShown.elapsed() < showEveryMs && m_current < m_total)
        return;
    m_sinceShown.start();
    show(m_action, m_total, m_current);
}

void PoolProgress::show(const QString &action, int total, int current)
{
    QMetaObject::invokeMethod(
        &m_progress,
        [self = shared_from_this(), action, total, current] {
            if (!self->m_attached)
                return;
            if (!action.isEmpty())
                self->m_progress.setProgressAction(action);
            self->m_progress.setProgressCurrent(current);
            self->m_progress.setProgressTotal(total);
        },
        Qt::QueuedConnection);
}
