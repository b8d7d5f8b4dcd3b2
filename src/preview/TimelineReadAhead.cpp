#include "preview/TimelineReadAhead.h"

#include "timeline/FramesModel.h"
#include "timeline/HoldScan.h"

#include <algorithm>

namespace {

/// Long enough that a row of edits makes one plan, short enough that a press of Play finds it made.
constexpr int replanDelayMs = 50;
constexpr int readyNoticeMs = 200;

void arm(QTimer &timer)
{
    // Not started anew, or a row of changes would put it off for ever.
    if (!timer.isActive())
        timer.start();
}

} // namespace

TimelineReadAhead::TimelineReadAhead(FramesModel &timeline, QObject *parent)
    : QObject(parent), m_timeline(timeline), m_direction(timeline.playDirection())
{
    m_replan.setSingleShot(true);
    m_replan.setInterval(replanDelayMs);
    connect(&m_replan, &QTimer::timeout, this, &TimelineReadAhead::replan);
    m_readyNotice.setSingleShot(true);
    m_readyNotice.setInterval(readyNoticeMs);
    connect(&m_readyNotice, &QTimer::timeout, this, &TimelineReadAhead::readyChanged);

    const auto replanOn = [this](auto signal) {
        connect(&m_timeline, signal, this, &TimelineReadAhead::replanSoon);
    };
    replanOn(&FramesModel::modelReset);
    replanOn(&FramesModel::rowsInserted);
    replanOn(&FramesModel::rowsRemoved);
    replanOn(&FramesModel::rowsMoved);
    replanOn(&FramesModel::dataChanged);
    replanOn(&FramesModel::layoutChanged);
    replanOn(&FramesModel::loadedChanged);
    replanOn(&FramesModel::timelineRangeStartChanged);
    replanOn(&FramesModel::timelineRangeEndChanged);
    replanOn(&FramesModel::loopChanged);
    replanOn(&FramesModel::pendulumChanged);
    replanOn(&FramesModel::playDirectionChanged);
    connect(&m_timeline, &FramesModel::currentIndexChanged, this, &TimelineReadAhead::watchDirection);
}

void TimelineReadAhead::setWish(const PictureRequest &like, bool active)
{
    PictureRequest nameless = like;
    nameless.name.clear();
    if (active == m_active && nameless.wantsSameAs(m_like))
        return;
    m_active = active;
    m_like = nameless;
    replanSoon();
}

void TimelineReadAhead::replanSoon()
{
    arm(m_replan);
}

/// A run that turns round at an end does not say so.
void TimelineReadAhead::watchDirection()
{
    if (m_timeline.playDirection() != m_direction)
        replanSoon();
}

void TimelineReadAhead::replan()
{
    m_direction = m_timeline.playDirection();
    ReadAheadPlan plan;
    plan.number = ++m_lastPlan;
    if (!m_active) {
        emit planned(plan);
        return;
    }
    plan.direction = m_direction;
    plan.loop = m_timeline.loop();
    plan.pendulum = m_timeline.pendulum();
    plan.like = m_like;
    listRows(plan);
    m_ready = QBitArray(plan.names.size());
    emit planned(plan);
    arm(m_readyNotice);
}

void TimelineReadAhead::listRows(ReadAheadPlan &plan)
{
    m_rows.clear();
    if (!m_timeline.loaded() || m_timeline.framesCount() == 0 || m_timeline.isResetting())
        return;
    const HoldScan::Range range = HoldScan::limitRange(
        m_timeline.timelineRangeStart(), m_timeline.timelineRangeEnd(), m_timeline.framesCount());
    QHash<QString, int> positions;
    int row = range.first;
    m_timeline.frames().forEach(range.first, range.last, [&](const Frame &frame) {
        if (!frame.hidden) {
            const QString &name =
                m_like.source == PictureRequest::fromCaptured ? frame.capFull : frame.refFull;
            Row entry{row, noPicture};
            if (!name.isEmpty()) {
                const auto known = positions.constFind(name);
                entry.position = known == positions.cend() ? int(plan.names.size()) : *known;
                if (known == positions.cend()) {
                    positions.insert(name, entry.position);
                    plan.names.append(name);
                }
                if (row <= m_timeline.currentIndex())
                    plan.cursor = entry.position;
            }
            m_rows.push_back(entry);
        }
        ++row;
    });
}

void TimelineReadAhead::setReady(int plan, const QBitArray &ready)
{
    if (plan != m_lastPlan || ready.size() != m_ready.size())
        return;
    m_ready = ready;
    arm(m_readyNotice);
}

bool TimelineReadAhead::isReady(int position) const
{
    return position == noPicture || m_ready.testBit(position);
}

QVariantList TimelineReadAhead::readyRuns() const
{
    QVariantList runs;
    int first = -1;
    int last = -1;
    const auto end = [&] {
        if (first >= 0)
            runs.append(QVariant(QVariantList{first, last}));
        first = -1;
    };
    for (const Row &entry : m_rows) {
        if (!isReady(entry.position)) {
            end();
            continue;
        }
        if (first < 0)
            first = entry.row;
        last = entry.row;
    }
    end();
    return runs;
}

qreal TimelineReadAhead::readyPercent() const
{
    if (m_rows.empty())
        return 0;
    const auto ready = std::count_if(m_rows.cbegin(), m_rows.cend(),
                                     [this](const Row &row) { return isReady(row.position); });
    return 100.0 * qreal(ready) / qreal(m_rows.size());
}
