#pragma once

#include "shared/global/GlobalStateBase.h"
#include "shared/Zum.h"

#include <QString>

/// Shared state of the program: the open project and its author, and what waits for an answer about it.
class ProjectState : public GlobalStateBase
{
    Q_OBJECT

    MORVANE_PROPERTY(bool, projectChanged, ProjectChanged, false)
    MORVANE_PROPERTY(int, afterConfirmAction, AfterConfirmAction, Zum::NoAfterConfirmAction)
    MORVANE_PROPERTY(QString, openProjectAfterConfirmPath, OpenProjectAfterConfirmPath)
    MORVANE_PROPERTY(bool, closeWhenDisconnected, CloseWhenDisconnected, false)
    MORVANE_PROPERTY(bool, busy, Busy, false)
    MORVANE_PROPERTY(QString, uptime, Uptime)
    MORVANE_PROJECT_PROPERTY(QString, authorName, AuthorName)
    MORVANE_PROJECT_PROPERTY(QString, authorSurname, AuthorSurname)
    MORVANE_PROJECT_PROPERTY(QString, authorMiddleName, AuthorMiddleName)
    MORVANE_PROJECT_PROPERTY(QString, movieTitle, MovieTitle)
    MORVANE_PROJECT_PROPERTY(QString, movieDirector, MovieDirector)
    MORVANE_PROJECT_PROPERTY(QString, movieScene, MovieScene)
    MORVANE_PROJECT_PROPERTY(QString, movieLayer, MovieLayer)
    MORVANE_PROPERTY(QString, lastCreatedPDF, LastCreatedPDF)
    MORVANE_PROPERTY(QString, lastVisitedWebUrl, LastVisitedWebUrl)
    MORVANE_PROPERTY(QString, currentWebUrl, CurrentWebUrl)
    MORVANE_PROPERTY(QString, cadrWord, CadrWord)

public:
    using GlobalStateBase::GlobalStateBase;
};
