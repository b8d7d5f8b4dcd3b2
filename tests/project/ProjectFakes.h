#pragma once

#include "project/ProjectNeighbours.h"

#include <QStringList>

/// The objects beside WebcamGlobal as plain fields. Each write is also noted in `calls`, in order.
struct FakeNeighbours : ProjectTimeline, ProjectVectorPath, ProjectCamera, ProjectScreen
{
    QStringList calls;

    QList<ProjectFrame> rows;
    int start = 0;
    int rangeStart = 0;
    int rangeEnd = 0;
    bool looping = true;
    bool swinging = false;
    double fps = 25.0;
    QByteArray bytes;
    QString olderText;
    QSizeF viewport;
    int smooth = 10;
    QVariantMap camera;
    int timelineHeight = 200;
    int mode = 0;
    QColor color = Qt::green;

    ProjectNeighbours references()
    {
        return {*this, *this, *this, *this};
    }

    QList<ProjectFrame> projectFrames() const override
    {
        return rows;
    }
    int startIndex() const override
    {
        return start;
    }
    void setStartIndex(int index) override
    {
        note("startIndex");
        start = index;
    }
    int timelineRangeStart() const override
    {
        return rangeStart;
    }
    void setTimelineRangeStart(int row) override
    {
        note("timelineRangeStart");
        rangeStart = row;
    }
    int timelineRangeEnd() const override
    {
        return rangeEnd;
    }
    void setTimelineRangeEnd(int row) override
    {
        note("timelineRangeEnd");
        rangeEnd = row;
    }
    bool loop() const override
    {
        return looping;
    }
    void setLoop(bool on) override
    {
        note("loop");
        looping = on;
    }
    bool pendulum() const override
    {
        return swinging;
    }
    void setPendulum(bool on) override
    {
        note("pendulum");
        swinging = on;
    }
    double timelineFps() const override
    {
        return fps;
    }
    void setTimelineFps(double value) override
    {
        note("fps");
        fps = value;
    }
    QByteArray pathBytes() const override
    {
        return bytes;
    }
    void readPathBytes(const QByteArray &value) override
    {
        note("pathBytes");
        bytes = value;
    }
    void readOlderPathText(const QString &text) override
    {
        note("olderPath");
        olderText = text;
    }
    QSizeF pathViewport() const override
    {
        return viewport;
    }
    void setPathViewport(const QSizeF &value) override
    {
        note("viewport");
        viewport = value;
    }
    int smoothValue() const override
    {
        return smooth;
    }
    void setSmoothValue(int value) override
    {
        note("smooth");
        smooth = value;
    }
    QVariantMap cameraSettings() const override
    {
        return camera;
    }
    void setCameraSetting(const QString &key, const QString &value) override
    {
        note("camera");
        camera.insert(key, value);
    }
    int limitedTimelineH() const override
    {
        return qBound(182, timelineHeight, 234);
    }
    void setTimelineH(int height) override
    {
        note("timelineH");
        timelineHeight = height;
    }
    int lightboxMode() const override
    {
        return mode;
    }
    void setLightboxMode(int value) override
    {
        note("lightboxMode");
        mode = value;
    }
    QColor lightboxColor() const override
    {
        return color;
    }
    void setLightboxColor(const QColor &value) override
    {
        note("lightboxColor");
        color = value;
    }

private:
    void note(const char *call)
    {
        calls.append(QString::fromLatin1(call));
    }
};
