#pragma once

#include "shared/Zum.h"

#include <optional>
#include <QCoreApplication>
#include <QString>

/// Decides from a file's root tag and its first Version element what kind of project it holds.
class ProjectVersion
{
    Q_DECLARE_TR_FUNCTIONS(ProjectVersion)

public:
    /// What the file says about itself; an attribute that is not there is empty.
    struct Facts
    {
        QString rootTag;
        bool hasVersionElement = false;
        std::optional<QString> majorText;
        std::optional<QString> verText;
    };

    struct Verdict
    {
        /// FileIsOk, LegacyFile or NotMorvaneFile.
        Zum::OpenFileEvents event = Zum::NotMorvaneFile;
        /// What to tell the user; empty for a current project.
        QString message;
        /// A line for the log; empty when there is none.
        QString logLine;
    };

    static Verdict check(const Facts &facts);
};
