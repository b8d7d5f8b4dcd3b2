#pragma once

#include "project/BackgroundSave.h"
#include "project/FrameFileOperations.h"
#include "project/ProjectLock.h"
#include "project/ProjectMapping.h"
#include "project/ProjectReport.h"
#include "project/ProjectServices.h"

#include "shared/PropertyMacros.h"

#include <optional>

class ProjectPaths;

/// The open project from new to closed: creating, opening, saving in five modes, asking before work is lost,
/// resetting all state, autosave and import. Main thread only.
///
/// States: no project (no path); loading (a path, projectLoaded false); open and clean; open and dirty
/// (allowQuietExit false). A project that is not completely loaded is never written.
class ProjectLifecycle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool projectLoaded READ projectLoaded NOTIFY projLoadedChanged)
    Q_PROPERTY(
        bool performAutosave READ performAutosave WRITE setPerformAutosave NOTIFY performAutosaveChanged)
    Q_PROPERTY(int autosaveDelay READ autosaveDelay WRITE setAutosaveDelay NOTIFY autosaveDelayChanged)

    /// Nothing to save: the program may close, and another project take this one's place, without asking.
    MORVANE_PROPERTY(bool, allowQuietExit, AllowQuietExit, true)
    /// A load may go on; clearing it breaks the load between two frames.
    MORVANE_PROPERTY(bool, loadingProject, LoadingProject, true)
    /// The open project came from the older format and has no file of its own yet.
    MORVANE_PROPERTY(bool, legacyProject, LegacyProject, false)
    /// Autosave rests until the next change.
    MORVANE_PROPERTY(bool, pauseAutosave, PauseAutosave, false)

public:
    enum class Reset {
        BeforeReading,
        Closing,
        BeforeNewProject,
    };

    ProjectLifecycle(const ProjectServices &services, ProjectPaths &paths, ProjectFrames &frames,
                     const ProjectNeighbours &neighbours, ThreadOperation &operation,
                     FrameFileOperations &files, ProjectLock &lock, QObject *parent = nullptr);

    /// A project is open and all its frames are in the timeline.
    bool projectLoaded() const
    {
        return m_projectLoaded;
    }
    bool performAutosave() const
    {
        return m_performAutosave;
    }
    /// Stored in the user's settings.
    void setPerformAutosave(bool perform);
    /// Minutes, 3 to 60.
    int autosaveDelay() const
    {
        return m_autosaveDelay;
    }
    /// Limited to the range and stored in the user's settings.
    void setAutosaveDelay(int minutes);

public slots:
    /// Opens a project, or the one that the user chooses. Returns a Zum::OpenFileEvents value; with FileIsOk
    /// the frames are still coming in.
    int projectFileOpen(const QString &path = {});
    /// The same, and tells the user the result in a message.
    int openProject(const QString &path = {});
    /// Reads the file at projPath. Returns as projectFileOpen does.
    int readProjectXmlFile();
    /// `saveMode` is one of Zum::SaveMode. False when nothing was written: the user gave up, there is no
    /// project, the save was refused or failed. A failure is also told to the user, and leaves the old file.
    ///
    /// SaveProjectXMLonly, the mode of shots and of autosave, takes the state of now and goes on: it is true
    /// when the write was begun. The project counts as saved from then on; a failure has it changed again.
    bool saveProjectXmlFile(int saveMode);
    /// Waits for saves that were begun. Call it before asking whether there is something to save.
    void finishSaves();
    /// Something that the project file keeps has changed.
    void projectChanged();
    /// The project was saved: goes on with whatever waited for it.
    void projectSaved();
    /// Closes without asking and without saving.
    void closeProject();
    /// Checks whether the project could take the name, and logs what would be renamed. Renames nothing.
    void renameProject(const QString &newName);
    /// Breaks a load, or another file operation that the user waits for.
    void stopLoadingProject();
    /// One turn of the autosave timer is over.
    void autosaveTick();

    /// Chooses another project and takes its frames over, pictures and all.
    bool importFrames();
    void cleanExtractedDir();
    void cleanCacheDirs();
    /// Puts the project at the head of the recent ones.
    void addLastProject();

    /// For the way out of the program: breaks a load, lets copies end.
    void finishOperations();

signals:
    void startProjectLoad();
    void beginLoadProject();
    void connectModel();
    void disconnectModel();
    void projPathChanged(bool emitUpdateSignal);
    void projLoadedChanged();
    /// Unsaved work: show the question whether to save. WebcamGlobal::afterConfirmAction tells what waits.
    void confirmClose();
    void windowModifiedChanged(bool modified);
    void quitRequested(bool force);
    void titleChanged();
    void performAutosaveChanged();
    void autosaveDelayChanged();

private:
    void resetProject(Reset mode);
    void setProjectLoaded(bool loaded);
    bool postponeFor(int afterConfirmAction);
    void forgetAfterConfirm();
    bool lockAllows(const QString &path);

    int refuseMissingFile(const QString &path);
    bool reportPathProblem(const QString &path);
    ProjectReadResult readInPool(const QString &path);
    int takeReadResult(const ProjectReadResult &result);
    void takeFrames(const QList<ProjectFrame> &frames);
    void startAdding(const QList<ProjectFrame> &frames, const QString &action);
    void onFramesAdded(FrameFileOperations::End end);
    void finishLoad();
    int convertLegacy();
    void lookForOrphans();
    void offerOrphans(const QStringList &names);
    void addOrphans(const QStringList &names);

    bool isWritable(int saveMode);
    QString chooseSavePath(int saveMode);
    bool createProject(const QString &path);
    bool saveAs(const QString &path);
    bool saveInPlace(int saveMode);
    bool write(ProjectMapping::Rows rows);
    void noteWritten();
    void tellOfFailure(const QString &path, const QString &reason);
    void onSaved(const QString &path, const AtomicFile::Result &result);
    void markSaved();
    void onProjectCopied(FrameFileOperations::End end, int failures);
    bool startCleanup(ProjectCleanup::Folders folders);
    void onCleanedUp(FrameFileOperations::End end, int failures);

    std::optional<QList<ProjectFrame>> readImportedFrames(const QString &path);
    void onFramesCopied(FrameFileOperations::End end, const QList<ProjectFrame> &frames, int failures);
    void warnOfFailures(int failures);

    ProjectServices m_services;
    ProjectPaths &m_paths;
    ProjectFrames &m_frames;
    ProjectNeighbours m_neighbours;
    ThreadOperation &m_operation;
    FrameFileOperations &m_files;
    ProjectLock &m_lock;
    ProjectMapping m_mapping;
    ProjectReport m_report;
    BackgroundSave m_saves;

    /// Of the project that an operation in the pool was started for; a later one is not concerned by its end.
    int m_operationGeneration = 0;
    int m_generation = 0;
    int m_autosaveDelay;
    bool m_performAutosave;
    bool m_projectLoaded = false;
    /// A file is being read: a second open is dropped.
    bool m_reading = false;
    /// The frames coming in are another project's, not those of this project's file.
    bool m_importing = false;
    /// The running operation belongs to a save, which is complete when it ends.
    bool m_endsSave = false;
    /// A change came after the file was last written.
    bool m_changedSinceWrite = false;
};
