#include "project/ProjectReport.h"

#include "shared/Dialogs.h"
#include "shared/MessageCentre.h"
#include "shared/ProgressState.h"

#include <QtDebug>

using namespace Qt::StringLiterals;

ProjectReport::ProjectReport(MessageCentre &messages, ProgressState &progress, morvane::Dialogs &dialogs)
    : m_messages(messages), m_progress(progress), m_dialogs(dialogs)
{
}

Zum::OpenFileEvents ProjectReport::tell(const ProjectReadResult &result, const QString &path)
{
    using Status = ProjectReadResult::Status;
    switch (result.status) {
        case Status::Ok:
            for (const QString &refusal : result.refusals)
                m_messages.post(Zum::FileMessage, Zum::Warning, refusal);
            break;
        case Status::CannotOpen:
            m_messages.advise(Zum::FileMessage, tr("Allow yourself to read the file, or open a copy of it"));
            m_dialogs.warn(tr("Load XML File Problem"), tr("Couldn't open '%1'").arg(path));
            qDebug("Failed to read XML file");
            break;
        case Status::NotParsable:
            m_progress.setProgressTotal(100);
            m_messages.advise(Zum::RobotMessage,
                              tr("The project file is damaged: open a backup of it. The pictures "
                                 "in its folder are as they were"));
            m_messages.reportError(result.error, Zum::Error);
            qDebug("Failed to read XML file");
            break;
        case Status::NotAProject:
            if (!result.hasVersion)
                m_progress.setProgressTotal(100);
            m_messages.advise(Zum::RobotMessage,
                              tr("The file is no project, or one of another version: open it with "
                                 "the program that wrote it"));
            m_messages.reportError(result.error, Zum::Error);
            if (!result.logLine.isEmpty())
                qDebug().noquote() << result.logLine;
            qDebug("Not an Morvane file");
            break;
        case Status::Legacy:
            m_messages.reportError(result.error, Zum::Info);
            break;
        case Status::Cancelled:
            break;
    }
    return result.event();
}

void ProjectReport::tellSaveFailed(const QString &path, const QString &reason)
{
    if (path.isEmpty())
        qDebug("Project path is empty. Cannot save");
    else
        qDebug("Failed to open file '%s' for writing", qUtf8Printable(path));
    m_messages.reportError(tr("The project could not be saved: %1. The file on disk is as it was. Make room "
                              "on the disk, or choose a "
                              "place that can be written.")
                               .arg(reason));
}
