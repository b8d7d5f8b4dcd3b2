#include "timeline/model/RangeState.h"

#include <cmath>
#include <QDebug>

namespace {
constexpr int largestStartIndex = 30000;
/// Makes up for two-decimal rates that lie a hair below their decimal form, such as 8.2.
constexpr qreal rateRounding = 1e-7;
constexpr qreal largestRate = 1e6;
} // namespace

RangeState::RangeState(QObject *parent) : FrameRows(parent)
{
    connect(this, &RangeState::timelineRangeStartChanged, this, &RangeState::calcTimelineRangeSize,
            Qt::UniqueConnection);
    connect(this, &RangeState::timelineRangeEndChanged, this, &RangeState::calcTimelineRangeSize,
            Qt::UniqueConnection);
    connect(this, &RangeState::timelineFpsChanged, this, &RangeState::updateDuration, Qt::UniqueConnection);
    connect(this, &RangeState::timelineRangeSizeChanged, this, &RangeState::updateDuration,
            Qt::UniqueConnection);
}

void RangeState::setStartIndex(int index)
{
    if (index < 0 || index > largestStartIndex) {
        qDebug().noquote() << QStringLiteral("Wrong start index: %1").arg(index);
        return;
    }
    if (index == m_startIndex)
        return;
    m_startIndex = index;
    emit startIndexChanged();
    emit changed();
}

void RangeState::setTimelineRangeStart(int row)
{
    if (row == m_rangeStart)
        return;
    m_rangeStart = row;
    emit timelineRangeStartChanged();
    emit changed();
}

void RangeState::setTimelineRangeEnd(int row)
{
    if (row == m_rangeEnd)
        return;
    m_rangeEnd = row;
    emit timelineRangeEndChanged();
    emit changed();
}

void RangeState::setTimelineFps(qreal fps)
{
    if (!std::isfinite(fps) || std::abs(fps) > largestRate)
        return;
    const qreal rate = std::trunc(fps * 100 + (fps > 0 ? rateRounding : 0)) / 100;
    if (morvane::sameValue(rate, m_fps))
        return;
    m_fps = rate;
    emit timelineFpsChanged();
    emit changed();
}

void RangeState::setPlayDirection(int direction)
{
    if (direction == m_playDirection)
        return;
    m_playDirection = direction;
    emit playDirectionChanged();
}

void RangeState::calcTimelineRangeSize()
{
    const int distance = qAbs(m_rangeEnd - m_rangeStart);
    setTimelineRangeSize(distance == 0 ? 0 : distance + 1);
}

void RangeState::updateDuration()
{
    const bool good = rateIsGood();
    m_duration = good ? timelineRangeSize() / m_fps * 1000 : 0;
    emit durationChanged();
    if (!good || timelineRangeSize() >= 1)
        updateInterval();
}

void RangeState::updateInterval()
{
    m_interval = m_fps > 0 ? std::floor(1000 / m_fps) : 0;
    emit intervalChanged();
}

bool RangeState::rateIsGood() const
{
    if (m_fps > 0)
        return true;
    qDebug("Unable start playing. Timeline Fps = 0");
    return false;
}

void RangeState::repairRange()
{
    if (!isRow(m_rangeStart))
        m_rangeStart = 0;
    if (!isRow(m_rangeEnd))
        m_rangeEnd = last();
    if (m_rangeEnd < m_rangeStart)
        m_rangeStart = m_rangeEnd;
}

void RangeState::signalRangeEnd(int row)
{
    m_rangeEnd = row;
    emit timelineRangeEndChanged();
}
