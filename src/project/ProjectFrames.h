#pragma once

#include "project/FrameFiles.h"
#include "project/ProjectNeighbours.h"

#include <QSize>
#include <QString>

/// The timeline as the life of a project needs it, beside the settings and rows that saving reads. Main
/// thread only.
class ProjectFrames : public ProjectTimeline
{
public:
    virtual int framesCount() const = 0;
    /// False while a project is being filled.
    virtual bool loaded() const = 0;
    /// Sets it, with its signals also when it is the same.
    virtual void setLoaded(bool loaded) = 0;
    /// Removes all rows and ends whatever batch action holds them.
    virtual void clear() = 0;
    virtual void stopPlayback() = 0;

    /// Brackets a long fill for which the views are disconnected.
    virtual void beginFill() = 0;
    virtual void endFill() = 0;
    /// Adds a row at the end: no undo record, no capture.
    virtual void append(const CheckedFrame &frame) = 0;

    /// Thumbnail of the current frame, a bare file name; empty when there is none.
    virtual QString currentCapturedThumb() const = 0;
};
