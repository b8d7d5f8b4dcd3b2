#pragma once

#include <memory>
#include <QList>
#include <QString>

/// A place where the system offers moving pictures.
struct VideoNode
{
    QString name;
    /// The index by which OpenCV's video input opens it.
    int index = 0;

    bool operator==(const VideoNode &) const = default;
};

/// The machine's cameras and capture adapters. Main thread.
class VideoNodes
{
public:
    virtual ~VideoNodes() = default;

    /// All of them, in the order of their indexes.
    virtual QList<VideoNode> list() = 0;

    /// Those of this system; none where the program does not know how to ask.
    static std::unique_ptr<VideoNodes> ofSystem();
};
