#pragma once

#include <functional>
#include <QDateTime>
#include <QSize>
#include <QString>

class Settings;

/// The list of recent projects in the user's settings: the newest eight, each under its own name. Main
/// thread only.
class RecentProjects
{
public:
    using Clock = std::function<QDateTime()>;

    /// How many projects are remembered.
    static constexpr int limit = 8;

    /// What is remembered of a project beside the moment it was added.
    struct Project
    {
        QString name;
        QString path;
        int frames = 0;
        /// Size of the crop area in pixels.
        QSize frameSize;
        /// Thumbnail of the current frame; empty when there is none.
        QString thumbnailUrl;
        /// The project came from a file of the older format and has no file of its own yet.
        bool legacy = false;
    };

    explicit RecentProjects(
        Settings &settings, Clock clock = [] { return QDateTime::currentDateTime(); });

    /// Puts the project at the head of the list and forgets the oldest beyond the limit. A legacy project,
    /// one named "default" and one without a name or a path never enter; the result tells whether it did.
    bool add(const Project &project);

private:
    void trim();

    Settings &m_settings;
    Clock m_clock;
};
