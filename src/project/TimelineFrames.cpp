#include "project/TimelineFrames.h"

#include "timeline/FramesModel.h"

TimelineFrames::TimelineFrames(FramesModel &model) : m_model(model)
{
}

QList<ProjectFrame> TimelineFrames::projectFrames() const
{
    QList<ProjectFrame> rows;
    rows.reserve(m_model.framesCount());
    m_model.frames().forEach(0, m_model.last(), [&rows](const Frame &frame) {
        rows.append({frame.capTumb, frame.capFull, frame.refTumb, frame.refFull, frame.staticState,
                     frame.phase, frame.mirrored, frame.hidden});
    });
    return rows;
}

int TimelineFrames::startIndex() const
{
    return m_model.startIndex();
}

void TimelineFrames::setStartIndex(int index)
{
    m_model.setStartIndex(index);
}

int TimelineFrames::timelineRangeStart() const
{
    return m_model.timelineRangeStart();
}

void TimelineFrames::setTimelineRangeStart(int row)
{
    m_model.setTimelineRangeStart(row);
}

int TimelineFrames::timelineRangeEnd() const
{
    return m_model.timelineRangeEnd();
}

void TimelineFrames::setTimelineRangeEnd(int row)
{
    m_model.setTimelineRangeEnd(row);
}

bool TimelineFrames::loop() const
{
    return m_model.loop();
}

void TimelineFrames::setLoop(bool on)
{
    m_model.setLoop(on);
}

bool TimelineFrames::pendulum() const
{
    return m_model.pendulum();
}

void TimelineFrames::setPendulum(bool on)
{
    m_model.setPendulum(on);
}

double TimelineFrames::timelineFps() const
{
    return m_model.timelineFps();
}

void TimelineFrames::setTimelineFps(double fps)
{
    m_model.setTimelineFps(fps);
}

int TimelineFrames::framesCount() const
{
    return m_model.framesCount();
}

bool TimelineFrames::loaded() const
{
    return m_model.loaded();
}

void TimelineFrames::setLoaded(bool loaded)
{
    m_model.setLoaded(loaded);
}

void TimelineFrames::clear()
{
    m_model.clearPendingAction();
    m_model.clear();
}

void TimelineFrames::stopPlayback()
{
    if (m_model.playing())
        m_model.stop();
}

void TimelineFrames::beginFill()
{
    m_model.beginFramesReset();
}

void TimelineFrames::endFill()
{
    m_model.endFramesReset();
}

// Not stored for undo; without a row to stand at, the frame goes to the end.
void TimelineFrames::append(const CheckedFrame &frame)
{
    constexpr int atTheEnd = -1;
    m_model.appendFrame(frame.toMap(), false, atTheEnd, false, false);
}

QString TimelineFrames::currentCapturedThumb() const
{
    return m_model.currentCapturedThumb();
}
