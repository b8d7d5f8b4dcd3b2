#pragma once

#include "project/ProjectDocument.h"

#include <QByteArray>
#include <QColor>
#include <QSizeF>
#include <QVariantMap>

/// What saving and opening a project need of the objects beside WebcamGlobal. Narrow, so that all of it is
/// tested without a window. Main thread only.

/// The timeline: its rows when saving, its settings both ways.
class ProjectTimeline
{
public:
    virtual ~ProjectTimeline() = default;

    /// All rows in order.
    virtual QList<ProjectFrame> projectFrames() const = 0;
    virtual int startIndex() const = 0;
    virtual void setStartIndex(int index) = 0;
    virtual int timelineRangeStart() const = 0;
    virtual void setTimelineRangeStart(int row) = 0;
    virtual int timelineRangeEnd() const = 0;
    virtual void setTimelineRangeEnd(int row) = 0;
    virtual bool loop() const = 0;
    virtual void setLoop(bool on) = 0;
    virtual bool pendulum() const = 0;
    virtual void setPendulum(bool on) = 0;
    /// Frames per second.
    virtual double timelineFps() const = 0;
    virtual void setTimelineFps(double fps) = 0;
};

/// The vector path.
class ProjectVectorPath
{
public:
    virtual ~ProjectVectorPath() = default;

    /// The model's own storage form, empty for no path.
    virtual QByteArray pathBytes() const = 0;
    virtual void readPathBytes(const QByteArray &bytes) = 0;
    /// The storage form of older files: "type,v1,...,v6;" for each node.
    virtual void readOlderPathText(const QString &text) = 0;
    virtual QSizeF pathViewport() const = 0;
    virtual void setPathViewport(const QSizeF &viewport) = 0;
    virtual int smoothValue() const = 0;
    virtual void setSmoothValue(int value) = 0;
};

/// The camera's settings map, texts under the keys that the camera uses.
class ProjectCamera
{
public:
    virtual ~ProjectCamera() = default;

    virtual QVariantMap cameraSettings() const = 0;
    /// Stores one setting; the camera ignores an empty text.
    virtual void setCameraSetting(const QString &key, const QString &value) = 0;
};

/// What the window itself keeps.
class ProjectScreen
{
public:
    virtual ~ProjectScreen() = default;

    /// Pixels, within the window's limits.
    virtual int limitedTimelineH() const = 0;
    virtual void setTimelineH(int height) = 0;
    /// One of Zum::LightboxMode.
    virtual int lightboxMode() const = 0;
    virtual void setLightboxMode(int mode) = 0;
    virtual QColor lightboxColor() const = 0;
    virtual void setLightboxColor(const QColor &color) = 0;
};

/// References to the four; they outlive whoever holds this.
struct ProjectNeighbours
{
    ProjectTimeline &timeline;
    ProjectVectorPath &path;
    ProjectCamera &camera;
    ProjectScreen &screen;
};
