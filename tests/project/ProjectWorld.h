#pragma once

#include "ProjectFakes.h"
#include "support/FakeDialogs.h"

#include "project/FrameFileOperations.h"
#include "project/ProjectLifecycle.h"
#include "project/ProjectLock.h"
#include "project/ProjectPaths.h"
#include "project/ProjectWriter.h"
#include "project/ThreadOperation.h"
#include "project/TimelineFrames.h"
#include "shared/FileSelection.h"
#include "shared/MessageCentre.h"
#include "shared/ProgressState.h"
#include "shared/RecentProjects.h"
#include "shared/Settings.h"
#include "shared/WebcamGlobal.h"
#include "timeline/FramesModel.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// A program with projects and no window: the real controllers over a folder of their own, with faked dialogs
/// and a faked camera, path and screen.
struct ProjectWorld : QObject
{
    struct Message
    {
        int sender;
        int type;
        QString text;
    };

    QTemporaryDir dir;
    FakeDialogs dialogs;
    Settings settings{dir.filePath(QStringLiteral("settings.ini"))};
    WebcamGlobal global;
    MessageCentre messages;
    ProgressState progress;
    FramesModel model;
    RecentProjects recent{settings};
    ProjectPaths paths{settings, {}, dir.filePath(QStringLiteral("home"))};
    FileSelection files{dialogs, settings, global, [this] {
                            return paths.projDirPath();
                        }};
    ThreadOperation operation;
    TimelineFrames timeline{model};
    FrameFileOperations operations{operation, timeline, progress, messages};
    ProjectLock lock;
    FakeNeighbours neighbours;
    QStringList importedPaths;
    int importTarget = -1;
    int clearedRobotJobs = 0;
    ProjectLifecycle life{services(), paths,      timeline, {timeline, neighbours, neighbours, neighbours},
                          operation,  operations, lock};
    QList<Message> said;

    ProjectWorld()
    {
        connect(&model, &FramesModel::changed, &life, &ProjectLifecycle::projectChanged);
        connect(&messages, &MessageCentre::appendMessage, this,
                [this](int sender, int type, const QString &text) {
                    said.append({sender, type, text});
                });
    }

    ProjectServices services()
    {
        return {settings,
                global,
                messages,
                progress,
                dialogs,
                files,
                recent,
                [this](const QStringList &pictures, int target) {
                    importedPaths = pictures;
                    importTarget = target;
                },
                [this] {
                    ++clearedRobotJobs;
                }};
    }

    QString path(const QString &name) const
    {
        return dir.filePath(name);
    }

    static bool writeFile(const QString &path, const QByteArray &bytes = "picture")
    {
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }
    static QByteArray fileBytes(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static QString frameName(int number, const QString &label = QStringLiteral("norm"))
    {
        return QStringLiteral("frame_%1_%2_240101120000.jpg").arg(label).arg(number, 6, 10, QLatin1Char('0'));
    }
    static ProjectFrame frame(int number)
    {
        ProjectFrame frame;
        frame.capFull = frameName(number);
        frame.capTumb = frameName(number, QStringLiteral("mini"));
        return frame;
    }
    /// The pictures of a frame, in a project's folders.
    static void writePictures(const ProjectTree &tree, int number, const QByteArray &bytes = "picture")
    {
        writeFile(tree.capFullDirPath + frameName(number), bytes);
        writeFile(tree.capTumbDirPath + frameName(number, QStringLiteral("mini")), bytes);
    }
    ProjectTree treeOf(const QString &name) const
    {
        return ProjectTree::of(path(name), dir.path());
    }

    /// A project of that many frames on the disk; `withPictures` also makes their files.
    QString writeProject(const QString &name, int frames, bool withPictures = true)
    {
        const ProjectTree tree = treeOf(name);
        QDir().mkpath(tree.capTumbDirPath);
        ProjectDocument document;
        document.frameSettings.emplace();
        document.render.emplace();
        document.camera.emplace();
        for (int number = 0; number < frames; ++number) {
            document.frames.append(frame(number));
            if (withPictures)
                writePictures(tree, number);
        }
        return ProjectWriter::save(path(name), document).ok ? path(name) : QString();
    }

    bool createProject(const QString &name)
    {
        dialogs.pathAnswers.append(path(name));
        return life.saveProjectXmlFile(Zum::NewProject);
    }
    /// A frame with its pictures, as a capture brings it.
    void addFrame(int number)
    {
        writePictures(paths.tree(), number);
        model.setShootMultipleFrames(0);
        model.appendFrame({{QStringLiteral("capFull"), frameName(number)},
                           {QStringLiteral("capTumb"), frameName(number, QStringLiteral("mini"))}},
                          true);
    }
    /// Only a failure waits so long, or work on ten thousand frames under a sanitizer.
    static constexpr int longestWaitMs = 60000;

    bool open(const QString &path)
    {
        return life.projectFileOpen(path) == Zum::FileIsOk
               && QTest::qWaitFor([this] { return life.projectLoaded() && operation.isFree(); },
                                  longestWaitMs);
    }
    bool waitFree()
    {
        return QTest::qWaitFor([this] { return operation.isFree(); }, longestWaitMs);
    }

    QStringList rowNames() const
    {
        QStringList names;
        for (const ProjectFrame &frame : timeline.projectFrames())
            names.append(frame.capFull);
        return names;
    }
    bool hasSaid(const QString &part, int type = -1) const
    {
        for (const Message &message : said) {
            if (message.text.contains(part) && (type < 0 || message.type == type))
                return true;
        }
        return false;
    }
    int timesAsked(const QString &kind) const
    {
        int times = 0;
        for (const FakeDialogs::Asked &asked : dialogs.asked)
            times += asked.kind == kind;
        return times;
    }
};
