#pragma once

#include "capture/system/VideoNodes.h"

#include <functional>

/// The capture nodes of Video4Linux. A camera brings several nodes, of which only some deliver pictures;
/// OpenCV's index is the number in the node's name.
class V4l2Nodes : public VideoNodes
{
public:
    enum class Delivers {
        Pictures,
        Nothing,
        /// The node could not be asked.
        Unknown,
    };
    using Probe = std::function<Delivers(const QString &devicePath)>;

    /// `systemFolder` has a folder for each node with the files "name" and "index"; `probe` asks a node of
    /// `deviceFolder` what it delivers.
    V4l2Nodes(QString systemFolder, QString deviceFolder, Probe probe);

    QList<VideoNode> list() override;

    /// Asks the driver.
    static Delivers probeDriver(const QString &devicePath);

private:
    bool deliversPictures(const QString &node) const;

    QString m_systemFolder;
    QString m_deviceFolder;
    Probe m_probe;
};
