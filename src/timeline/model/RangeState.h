#pragma once

#include "shared/PropertyMacros.h"
#include "timeline/model/FrameRows.h"

#include "shared/Zum.h"

/// Second layer of FramesModel: the play range with the times that follow from it, and the switches of
/// playback and of the timeline's look. Rows of the range count from 0; times are milliseconds.
class RangeState : public FrameRows
{
    Q_OBJECT
    Q_PROPERTY(int startIndex READ startIndex WRITE setStartIndex NOTIFY startIndexChanged)
    Q_PROPERTY(qreal timelineFps READ timelineFps WRITE setTimelineFps NOTIFY timelineFpsChanged)
    Q_PROPERTY(
        int playDirection READ playDirection WRITE setPlayDirection NOTIFY playDirectionChanged STORED false)
    Q_PROPERTY(qreal duration READ duration NOTIFY durationChanged STORED false)
    Q_PROPERTY(qreal interval READ interval NOTIFY intervalChanged STORED false)
    Q_PROPERTY(int timelineRangeStart READ timelineRangeStart WRITE setTimelineRangeStart NOTIFY
                   timelineRangeStartChanged)
    Q_PROPERTY(
        int timelineRangeEnd READ timelineRangeEnd WRITE setTimelineRangeEnd NOTIFY timelineRangeEndChanged)

    /// 0 when the range starts and ends at the same row, otherwise its number of rows.
    MORVANE_READ_ONLY_PROPERTY(int, timelineRangeSize, TimelineRangeSize, 0)
    MORVANE_READ_ONLY_PROPERTY(int, actualFps, ActualFps, 0)
    MORVANE_PROPERTY(bool, playingCaptured, PlayingCaptured, true)
    MORVANE_PROJECT_PROPERTY(bool, pendulum, Pendulum, false)
    MORVANE_PROJECT_PROPERTY(bool, loop, Loop, true)
    /// The capture side's flip-flop owns the screen: a running playback stops.
    MORVANE_PROPERTY(bool, flipFlopRunning, FlipFlopRunning, false)
    MORVANE_PROPERTY(bool, doubleDecker, DoubleDecker, false)
    /// A capture extends the range to the last row.
    MORVANE_PROPERTY(bool, autoMaximizeRange, AutoMaximizeRange, true)

public:
    explicit RangeState(QObject *parent = nullptr);

    int startIndex() const
    {
        return m_startIndex;
    }
    /// The number shown for row 0; accepted from 0 to 30000.
    void setStartIndex(int index);
    int timelineRangeStart() const
    {
        return m_rangeStart;
    }
    void setTimelineRangeStart(int row);
    int timelineRangeEnd() const
    {
        return m_rangeEnd;
    }
    void setTimelineRangeEnd(int row);
    qreal timelineFps() const
    {
        return m_fps;
    }
    /// Cut to two decimals; a value that is no finite number is ignored.
    void setTimelineFps(qreal fps);
    qreal duration() const
    {
        return m_duration;
    }
    /// Whole milliseconds; 0 when no rate or range was ever good.
    qreal interval() const
    {
        return m_interval;
    }
    int playDirection() const
    {
        return m_playDirection;
    }
    void setPlayDirection(int direction);

    Q_INVOKABLE void calcTimelineRangeSize();
    Q_INVOKABLE void updateDuration();

signals:
    void startIndexChanged();
    void timelineRangeStartChanged();
    void timelineRangeEndChanged();
    void timelineFpsChanged();
    void durationChanged();
    void intervalChanged();
    void playDirectionChanged();

protected:
    /// Puts a range that leaves the rows back into them; the list must not be empty. No signals.
    void repairRange();
    void updateInterval();
    void signalRangeEnd(int row);
    /// Turning round at an end of the range is not a change of the user's setting: no signal.
    void turnTo(int direction)
    {
        m_playDirection = direction;
    }

private:
    bool rateIsGood() const;

    int m_startIndex = 0;
    int m_rangeStart = 0;
    int m_rangeEnd = 0;
    int m_playDirection = Zum::Forward;
    qreal m_fps = 25;
    qreal m_duration = 0;
    qreal m_interval = 0;
};
