#include "project/ProjectLifecycle.h"

#include "project/GlobalReset.h"
#include "project/ProjectFrames.h"
#include "project/ProjectPaths.h"
#include "project/ThreadOperation.h"
#include "shared/Dialogs.h"
#include "shared/MessageCentre.h"
#include "shared/Names.h"
#include "shared/ProgressState.h"
#include "shared/RecentProjects.h"
#include "shared/Settings.h"
#include "shared/StringText.h"
#include "shared/WebcamGlobal.h"

#include <QFileInfo>
#include <QtDebug>

using namespace Qt::StringLiterals;

namespace {
const QString performAutosaveKey = u"performAutosave"_s;
const QString autosaveDelayKey = u"autosaveDelay"_s;
} // namespace

ProjectLifecycle::ProjectLifecycle(const ProjectServices &services, ProjectPaths &paths,
                                   ProjectFrames &frames, const ProjectNeighbours &neighbours,
                                   ThreadOperation &operation, FrameFileOperations &files, ProjectLock &lock,
                                   QObject *parent)
    : QObject(parent), m_services(services), m_paths(paths), m_frames(frames), m_neighbours(neighbours),
      m_operation(operation), m_files(files), m_lock(lock),
      m_mapping(services.global, neighbours, services.messages),
      m_report(services.messages, services.progress, services.dialogs),
      m_autosaveDelay(services.settings.integer(autosaveDelayKey, morvane::autosaveDelayMinMinutes,
                                                morvane::autosaveDelayMinMinutes,
                                                morvane::autosaveDelayMaxMinutes)),
      m_performAutosave(services.settings.boolean(performAutosaveKey, true))
{
    WebcamGlobal &global = services.global;
    connect(&global, &WebcamGlobal::changed, this, &ProjectLifecycle::projectChanged);
    connect(&global, &WebcamGlobal::globalSave, this, &ProjectLifecycle::projectChanged);
    connect(&global, &WebcamGlobal::saved, this, &ProjectLifecycle::projectSaved);
    connect(&paths, &ProjectPaths::projPathChanged, this, &ProjectLifecycle::projPathChanged);
    connect(this, &ProjectLifecycle::loadingProjectChanged, this, [this] {
        if (!loadingProject())
            m_files.cancel();
    });
    connect(&files, &FrameFileOperations::framesAdded, this, &ProjectLifecycle::onFramesAdded);
    connect(&files, &FrameFileOperations::framesCopied, this, &ProjectLifecycle::onFramesCopied);
    connect(&files, &FrameFileOperations::projectCopied, this, &ProjectLifecycle::onProjectCopied);
    connect(&files, &FrameFileOperations::cleanedUp, this, &ProjectLifecycle::onCleanedUp);
    connect(&m_saves, &BackgroundSave::saved, this, &ProjectLifecycle::onSaved);
}

void ProjectLifecycle::setPerformAutosave(bool perform)
{
    if (m_performAutosave == perform)
        return;
    m_performAutosave = perform;
    m_services.settings.setValue(performAutosaveKey, perform);
    emit performAutosaveChanged();
}

void ProjectLifecycle::setAutosaveDelay(int minutes)
{
    const int limited = qBound(morvane::autosaveDelayMinMinutes, minutes, morvane::autosaveDelayMaxMinutes);
    if (m_autosaveDelay == limited)
        return;
    m_autosaveDelay = limited;
    m_services.settings.setValue(autosaveDelayKey, limited);
    emit autosaveDelayChanged();
}

void ProjectLifecycle::autosaveTick()
{
    if (!m_projectLoaded)
        return;
    if (m_services.global.projectChanged())
        emit m_services.global.autosave();
    else
        setPauseAutosave(true);
}

void ProjectLifecycle::setProjectLoaded(bool loaded)
{
    if (m_projectLoaded == loaded)
        return;
    m_projectLoaded = loaded;
    emit projLoadedChanged();
}

void ProjectLifecycle::projectChanged()
{
    if (!m_projectLoaded)
        return;
    m_changedSinceWrite = true;
    m_services.global.setProjectChanged(true);
    setAllowQuietExit(false);
    emit windowModifiedChanged(true);
    setPauseAutosave(false);
}

void ProjectLifecycle::projectSaved()
{
    if (!m_projectLoaded)
        return;
    setAllowQuietExit(true);
    emit windowModifiedChanged(false);
    WebcamGlobal &global = m_services.global;
    const int next = global.afterConfirmAction();
    global.setAfterConfirmAction(Zum::NoAfterConfirmAction);
    if (next == Zum::QuitAfterConfirm)
        emit quitRequested(false);
    else if (next == Zum::OpenProjectAfterConfirm)
        openProject(global.openProjectAfterConfirmPath());
    else if (next == Zum::CreateProjectAfterConfirm)
        saveProjectXmlFile(Zum::NewProject);
}

// Nothing is lost without a question: true when the step has to wait for its answer.
bool ProjectLifecycle::postponeFor(int afterConfirmAction)
{
    finishSaves();
    if (allowQuietExit())
        return false;
    m_services.global.setAfterConfirmAction(afterConfirmAction);
    emit confirmClose();
    return true;
}

// The step that waited for the answer is being taken: a later save must not take it again.
void ProjectLifecycle::forgetAfterConfirm()
{
    m_services.global.setAfterConfirmAction(Zum::NoAfterConfirmAction);
}

void ProjectLifecycle::resetProject(Reset mode)
{
    finishSaves();
    ++m_generation;
    m_files.abandonAdding();
    m_frames.stopPlayback();
    m_importing = false;
    m_changedSinceWrite = false;
    setLoadingProject(true);
    m_services.progress.setProgressCurrent(0);
    m_services.progress.setProgressTotal(0);
    m_frames.setLoaded(false);
    setProjectLoaded(false);
    setLegacyProject(false);
    if (mode != Reset::BeforeNewProject)
        emit disconnectModel();
    morvane::resetProjectState(m_services.global);
    m_neighbours.path.readPathBytes({});
    m_frames.clear();
    m_frames.setTimelineRangeStart(0);
    m_frames.setTimelineRangeEnd(0);
    if (mode == Reset::BeforeReading)
        return;
    m_paths.clear(mode == Reset::Closing);
    if (mode == Reset::Closing) {
        m_lock.release();
        emit projPathChanged(false);
        emit connectModel();
    }
    emit windowModifiedChanged(false);
    emit titleChanged();
}

void ProjectLifecycle::closeProject()
{
    finishSaves();
    setAllowQuietExit(true);
    resetProject(Reset::Closing);
}

void ProjectLifecycle::renameProject(const QString &newName)
{
    const QString name = morvane::cleanStr(newName, false, true);
    const ProjectTree &tree = m_paths.tree();
    const QString newFile = tree.projDirPath + name + u'.' + QFileInfo(m_paths.projPath()).suffix();
    const QString newFolder = tree.projDirPath + name + "_files"_L1;
    if (QFileInfo::exists(newFile)) {
        m_services.dialogs.warn(tr("File Already Exists"),
                                tr("Cannot create a file when file already exists"));
        return;
    }
    if (QFileInfo::exists(newFolder)) {
        m_services.dialogs.warn(tr("Folder Already Exists"),
                                tr("Cannot create a folder when folder already exists: %1").arg(newFolder));
        return;
    }
    qDebug("will rename project file %s to %s", qUtf8Printable(m_paths.projPath()), qUtf8Printable(newFile));
    qDebug("will rename project dir %s to %s", qUtf8Printable(tree.projContntDirPath),
           qUtf8Printable(newFolder));
}

void ProjectLifecycle::addLastProject()
{
    const WebcamGlobal &global = m_services.global;
    const QString thumbnail = m_paths.buildImagePath(Zum::CapTumb, m_frames.currentCapturedThumb());
    m_services.recent.add({
        .name = m_paths.projName(),
        .path = m_paths.projPath(),
        .frames = m_frames.framesCount(),
        .frameSize = {global.cropAreaW(), global.cropAreaH()},
        .thumbnailUrl = thumbnail == morvane::emptyFrameImage ? QString() : thumbnail,
        .legacy = legacyProject(),
    });
}

void ProjectLifecycle::stopLoadingProject()
{
    m_services.global.setPaused(false);
    setLoadingProject(false);
    m_files.cancel();
}

void ProjectLifecycle::finishOperations()
{
    setLoadingProject(false);
    finishSaves();
    m_files.finish();
}

bool ProjectLifecycle::lockAllows(const QString &path)
{
    ProjectLock::Owner owner;
    const ProjectLock::State state = m_lock.look(path, &owner);
    if (state == ProjectLock::State::Free)
        return true;
    const QString title = tr("Project Is Already Open");
    const QString who = tr("'%1' was opened on %2 by the program with the number %3 on the computer '%4'.")
                            .arg(path, owner.since.toString(u"yyyy-MM-dd hh:mm"_s))
                            .arg(owner.pid)
                            .arg(owner.host);
    if (state == ProjectLock::State::Held) {
        m_services.dialogs.warn(title, who + u' ' + tr("Close it there first."));
        return false;
    }
    const QString hint = state == ProjectLock::State::OwnerGone
                             ? tr("That program has ended without closing it.")
                             : tr("Whether it still runs there cannot be told from here.");
    return m_services.dialogs.ask(title, who + u' ' + hint, tr("Open Anyway"), {})
           == morvane::Dialogs::Answer::Yes;
}

void ProjectLifecycle::warnOfFailures(int failures)
{
    if (failures > 0)
        m_services.messages.post(Zum::FileMessage, Zum::Warning,
                                 tr("%n file(s) could not be copied or removed", nullptr, failures));
}
