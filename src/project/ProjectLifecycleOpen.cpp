// Opening a project: from the path to the last frame in the timeline.
#include "project/LegacyProject.h"
#include "project/OrphanImages.h"
#include "project/ProjectFrames.h"
#include "project/ProjectLifecycle.h"
#include "project/ProjectPathCheck.h"
#include "project/ProjectPaths.h"
#include "project/ThreadOperation.h"
#include "shared/Dialogs.h"
#include "shared/FileSelection.h"
#include "shared/MessageCentre.h"
#include "shared/ProgressState.h"
#include "shared/WebcamGlobal.h"

#include <QEventLoop>
#include <QtConcurrent>
#include <QtDebug>

using namespace Qt::StringLiterals;

namespace {
/// Pixels at the scale 1.
constexpr QSizeF thumbnailSize(90, 60);

/// Calls `then` on the owner's thread with what the pool came to, unless the owner is gone by then.
template <typename Result, typename Then>
void whenDone(const QFuture<Result> &future, QObject *owner, Then then)
{
    auto *watcher = new QFutureWatcher<Result>(owner);
    QObject::connect(watcher, &QFutureWatcherBase::finished, owner, [watcher, then] {
        watcher->deleteLater();
        then(watcher->result());
    });
    watcher->setFuture(future);
}

} // namespace

int ProjectLifecycle::openProject(const QString &path)
{
    const int event = projectFileOpen(path);
    MessageCentre &messages = m_services.messages;
    if (event == Zum::FileIsOk)
        messages.post(Zum::FileMessage, Zum::Info, tr("Project loaded"));
    else if (event == Zum::FileDoesntExists)
        messages.post(Zum::FileMessage, Zum::Error, tr("Project file not found"));
    else if (event == Zum::FileAlreadyOpened)
        messages.post(Zum::FileMessage, Zum::Error, tr("Project already loaded"));
    return event;
}

int ProjectLifecycle::projectFileOpen(const QString &path)
{
    if (m_reading)
        return Zum::FileSelectionCanceled;
    if (!allowQuietExit())
        m_services.global.setOpenProjectAfterConfirmPath(path);
    if (postponeFor(Zum::OpenProjectAfterConfirm))
        return Zum::FileSelectionCanceled;
    forgetAfterConfirm();

    const QString chosen = path.isEmpty() ? m_services.files.openFileDialog(Zum::ProjectFilesFilter) : path;
    if (chosen.isEmpty())
        return Zum::FileSelectionCanceled;
    if (!ProjectPathCheck::isOpenableFile(chosen))
        return refuseMissingFile(chosen);
    if (reportPathProblem(chosen))
        return Zum::FileDoesntExists;
    if (!lockAllows(chosen))
        return Zum::FileSelectionCanceled;

    // The file is read before anything is given up or made for it on the disk.
    const ProjectReadResult result = readInPool(chosen);
    m_frames.setLoaded(false);
    setProjectLoaded(false);
    m_paths.setProjPath(chosen);
    const bool usable = result.event() == Zum::FileIsOk || result.event() == Zum::LegacyFile;
    if (usable) {
        m_lock.take(chosen);
        emit m_paths.projPathChanged(true);
    }
    const int event = takeReadResult(result);
    if (!usable)
        resetProject(Reset::Closing);
    return event;
}

int ProjectLifecycle::refuseMissingFile(const QString &path)
{
    resetProject(Reset::Closing);
    m_services.dialogs.warn(tr("Load Project File Problem"), tr("Couldn't open '%1'").arg(path));
    return Zum::FileDoesntExists;
}

bool ProjectLifecycle::reportPathProblem(const QString &path)
{
    const QString problem = ProjectPathCheck::problem(path);
    if (problem.isEmpty())
        return false;
    MessageCentre &messages = m_services.messages;
    messages.reportError(problem);
    messages.post(Zum::RobotMessage, Zum::Error, tr("error loading project"));
    // A total that comes and goes leaves the dialog with the errors on the screen.
    m_services.progress.setProgressTotal(100);
    m_services.progress.setProgressTotal(0);
    return true;
}

int ProjectLifecycle::readProjectXmlFile()
{
    if (m_paths.projPath().isEmpty())
        return Zum::FileDoesntExists;
    if (m_reading)
        return Zum::FileSelectionCanceled;
    return takeReadResult(readInPool(m_paths.projPath()));
}

// The window goes on painting while the pool reads; what the user does waits until the result is there.
ProjectReadResult ProjectLifecycle::readInPool(const QString &path)
{
    m_reading = true;
    finishSaves();
    setLoadingProject(false);
    if (m_services.clearRobotJob)
        m_services.clearRobotJob();
    if (m_services.global.playerPlaying())
        m_services.global.setPlayerPaused(true);
    QFutureWatcher<ProjectReadResult> watcher;
    QEventLoop loop;
    connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    watcher.setFuture(QtConcurrent::run([path] { return ProjectReader::readFile(path); }));
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    watcher.waitForFinished();
    m_reading = false;
    return watcher.result();
}

int ProjectLifecycle::takeReadResult(const ProjectReadResult &result)
{
    const int event = m_report.tell(result, m_paths.projPath());
    if (event == Zum::LegacyFile)
        return convertLegacy();
    if (event != Zum::FileIsOk)
        return event;
    resetProject(Reset::BeforeReading);
    m_mapping.apply(result.document);
    emit startProjectLoad();
    takeFrames(result.document.frames);
    return Zum::FileIsOk;
}

void ProjectLifecycle::takeFrames(const QList<ProjectFrame> &frames)
{
    if (frames.isEmpty()) {
        finishLoad();
        return;
    }
    if (!m_operation.begin(Zum::OAddFrames)) {
        qDebug("Start append frames: Thread is busy");
        m_services.messages.post(
            Zum::FileMessage, Zum::Warning,
            tr("Another operation is still running. Open the project again when it has ended"));
        return;
    }
    emit beginLoadProject();
    if (!loadingProject()) {
        m_operation.end();
        resetProject(Reset::Closing);
        return;
    }
    startAdding(frames, tr("Loading Project"));
}

void ProjectLifecycle::startAdding(const QList<ProjectFrame> &frames, const QString &action)
{
    m_operationGeneration = m_generation;
    m_services.progress.setProgressAction(action);
    m_services.progress.setProgressCurrent(0);
    m_services.progress.setProgressTotal(int(frames.size()));
    m_files.addFrames(frames, m_paths.tree());
}

void ProjectLifecycle::onFramesAdded(FrameFileOperations::End end)
{
    if (end == FrameFileOperations::End::Cancelled) {
        m_importing = false;
        m_services.progress.stopProgress();
        emit connectModel();
        m_operation.end();
        return;
    }
    finishLoad();
}

void ProjectLifecycle::finishLoad()
{
    m_services.progress.setProgressAction({});
    m_services.progress.setProgressCurrent(0);
    m_services.progress.setProgressTotal(0);
    emit connectModel();
    const int generation = m_generation;
    m_operation.end();
    if (generation != m_generation)
        return;
    const bool imported = m_importing;
    m_importing = false;
    m_frames.setLoaded(true);
    setProjectLoaded(true);
    setAllowQuietExit(true);
    if (imported)
        projectChanged();
    else
        lookForOrphans();
}

int ProjectLifecycle::convertLegacy()
{
    resetProject(Reset::BeforeReading);
    setLegacyProject(true);
    const std::optional<QStringList> images =
        morvane::legacyProjectImages(m_paths.projPath(), m_paths.projContntDirPath());
    if (!images)
        return Zum::LegacyFile;
    m_frames.setLoaded(true);
    setProjectLoaded(true);
    setAllowQuietExit(false);
    emit startProjectLoad();
    emit beginLoadProject();
    emit connectModel();
    if (m_services.importImages)
        m_services.importImages(*images, Zum::CapturedImages);
    return Zum::LegacyFile;
}

void ProjectLifecycle::lookForOrphans()
{
    if (ProjectCleanup::sharesContentFolder(m_paths.tree()))
        return;
    const auto search = QtConcurrent::run(OrphanImages::find, m_paths.tree(), m_frames.projectFrames());
    whenDone(search, this, [this, generation = m_generation](const QStringList &names) {
        if (generation == m_generation && m_projectLoaded && !names.isEmpty())
            offerOrphans(names);
    });
}

void ProjectLifecycle::offerOrphans(const QStringList &names)
{
    using Answer = morvane::Dialogs::Answer;
    const QString question =
        tr("%n captured picture(s) in the project's folder belong to no frame.", nullptr, int(names.size()))
        + u' '
        + tr(
            "Add them at the end, or move them to the recycle folder? "
            "Cancel leaves them where they are and does not ask about them again.");
    const int generation = m_generation;
    const Answer answer = m_services.dialogs.ask(tr("Pictures Without a Frame"), question,
                                                 tr("Add at the End"), tr("Move to Recycle Folder"));
    if (generation != m_generation)
        return;
    if (answer == Answer::Yes)
        addOrphans(names);
    else if (answer == Answer::No)
        warnOfFailures(OrphanImages::moveToRecycleFolder(names, m_paths.tree()));
    else
        OrphanImages::leave(names, m_paths.tree());
}

void ProjectLifecycle::addOrphans(const QStringList &names)
{
    const QSize bounds = (thumbnailSize * Zum::dpiScale()).toSize();
    const auto making = QtConcurrent::run(OrphanImages::asFrames, names, m_paths.tree(), bounds);
    whenDone(making, this, [this, generation = m_generation](const QList<ProjectFrame> &frames) {
        if (generation != m_generation || !m_projectLoaded)
            return;
        for (const ProjectFrame &frame : frames)
            m_frames.append(FrameFiles::check(frame, m_paths.tree()));
        projectChanged();
    });
}
