#pragma once

#include "project/ProjectFrames.h"

class FramesModel;

/// The frames model as a project's timeline.
class TimelineFrames : public ProjectFrames
{
public:
    explicit TimelineFrames(FramesModel &model);

    QList<ProjectFrame> projectFrames() const override;
    int startIndex() const override;
    void setStartIndex(int index) override;
    int timelineRangeStart() const override;
    void setTimelineRangeStart(int row) override;
    int timelineRangeEnd() const override;
    void setTimelineRangeEnd(int row) override;
    bool loop() const override;
    void setLoop(bool on) override;
    bool pendulum() const override;
    void setPendulum(bool on) override;
    double timelineFps() const override;
    void setTimelineFps(double fps) override;

    int framesCount() const override;
    bool loaded() const override;
    void setLoaded(bool loaded) override;
    void clear() override;
    void stopPlayback() override;
    void beginFill() override;
    void endFill() override;
    void append(const CheckedFrame &frame) override;
    QString currentCapturedThumb() const override;

private:
    FramesModel &m_model;
};
