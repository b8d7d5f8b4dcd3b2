#pragma once

#include "project/ProjectReader.h"

class MessageCentre;
class ProgressState;

namespace morvane {
class Dialogs;
}

/// Tells the user and the log what became of reading a project file. Main thread.
class ProjectReport
{
    Q_DECLARE_TR_FUNCTIONS(ProjectReport)

public:
    ProjectReport(MessageCentre &messages, ProgressState &progress, morvane::Dialogs &dialogs);

    /// `path` is the project file's. Returns the result as the scene knows it.
    Zum::OpenFileEvents tell(const ProjectReadResult &result, const QString &path);

    /// A save that failed: a line in the log and an error for the user with the reason.
    void tellSaveFailed(const QString &path, const QString &reason);

private:
    MessageCentre &m_messages;
    ProgressState &m_progress;
    morvane::Dialogs &m_dialogs;
};
