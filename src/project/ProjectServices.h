#pragma once

#include <functional>
#include <QStringList>

class FileSelection;
class MessageCentre;
class ProgressState;
class RecentProjects;
class Settings;
class WebcamGlobal;

namespace morvane {
class Dialogs;
}

/// What the project's controllers use of the rest of the program. They outlive whoever holds this.
struct ProjectServices
{
    Settings &settings;
    WebcamGlobal &global;
    MessageCentre &messages;
    ProgressState &progress;
    morvane::Dialogs &dialogs;
    FileSelection &files;
    RecentProjects &recent;

    /// Asks the background worker to bring pictures, given by full path, into the project and to make their
    /// thumbnails; `importTarget` is one of Zum::ImportTargets. May be empty: then nothing happens.
    std::function<void(const QStringList &paths, int importTarget)> importImages = {};
    /// Forgets which job the background worker runs; may be empty.
    std::function<void()> clearRobotJob = {};
};
