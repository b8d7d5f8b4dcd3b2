#pragma once

#include "project/FrameFileOperations.h"
#include "project/ProjectLifecycle.h"
#include "project/ProjectLock.h"
#include "project/ProjectPaths.h"
#include "project/ThreadOperation.h"
#include "project/TimelineFrames.h"
#include "shared/Dialogs.h"
#include "shared/FileSelection.h"
#include "shared/MessageCentre.h"
#include "shared/ProgressState.h"
#include "shared/RecentProjects.h"
#include "shared/Settings.h"
#include "shared/WebcamGlobal.h"
#include "timeline/FramesModel.h"

#include <QtGlobal>

/// Nobody is there to answer; a figure that would ask is no figure.
class NoDialogs : public morvane::Dialogs
{
public:
    QString openFile(const QString &, const QString &, const QString &) override
    {
        return {};
    }
    QStringList openFiles(const QString &, const QString &, const QString &) override
    {
        return {};
    }
    QString saveFile(const QString &, const QString &, const QString &, const QString &) override
    {
        return {};
    }
    QString selectFolder(const QString &, const QString &) override
    {
        return {};
    }
    void warn(const QString &, const QString &text) override
    {
        qFatal("%s", qUtf8Printable(text));
    }
    Answer ask(const QString &, const QString &text, const QString &, const QString &) override
    {
        qFatal("%s", qUtf8Printable(text));
        return Answer::Cancel;
    }
};

/// The objects of a window that is not there.
class NoNeighbours : public ProjectVectorPath, public ProjectCamera, public ProjectScreen
{
public:
    QByteArray pathBytes() const override
    {
        return {};
    }
    void readPathBytes(const QByteArray &) override
    {
    }
    void readOlderPathText(const QString &) override
    {
    }
    QSizeF pathViewport() const override
    {
        return {};
    }
    void setPathViewport(const QSizeF &) override
    {
    }
    int smoothValue() const override
    {
        return 0;
    }
    void setSmoothValue(int) override
    {
    }
    QVariantMap cameraSettings() const override
    {
        return {};
    }
    void setCameraSetting(const QString &, const QString &) override
    {
    }
    int limitedTimelineH() const override
    {
        return 200;
    }
    void setTimelineH(int) override
    {
    }
    int lightboxMode() const override
    {
        return 0;
    }
    void setLightboxMode(int) override
    {
    }
    QColor lightboxColor() const override
    {
        return {};
    }
    void setLightboxColor(const QColor &) override
    {
    }
};

/// The program's own controllers for projects and frames, put together as in the window but with no scene.
struct OpenProgram
{
    explicit OpenProgram(const QString &settingsPath) : settings(settingsPath)
    {
        QObject::connect(&model, &FramesModel::changed, &life, &ProjectLifecycle::projectChanged);
    }

    NoDialogs dialogs;
    Settings settings;
    WebcamGlobal global;
    MessageCentre messages;
    ProgressState progress;
    FramesModel model;
    RecentProjects recent{settings};
    ProjectPaths paths{settings,
                       {.closeSessionLog = {},
                        .openSessionLog = {},
                        .setFrameFolders = [this](const QVariantMap &folders) { model.setFolders(folders); },
                        .resetTitle = {}},
                       QStringLiteral("/nonexistent")};
    FileSelection files{dialogs, settings, global, [this] {
                            return paths.projDirPath();
                        }};
    ThreadOperation operation;
    TimelineFrames timeline{model};
    FrameFileOperations operations{operation, timeline, progress, messages};
    ProjectLock lock;
    NoNeighbours neighbours;
    ProjectLifecycle life{{settings, global, messages, progress, dialogs, files, recent},
                          paths,
                          timeline,
                          {timeline, neighbours, neighbours, neighbours},
                          operation,
                          operations,
                          lock};
};
