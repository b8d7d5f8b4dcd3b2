// Saving in five modes, and what follows each.
#include "project/ProjectFrames.h"
#include "project/ProjectLifecycle.h"
#include "project/ProjectPaths.h"
#include "project/ProjectWriter.h"
#include "project/ThreadOperation.h"
#include "shared/Dialogs.h"
#include "shared/FileSelection.h"
#include "shared/MessageCentre.h"
#include "shared/Names.h"
#include "shared/ProgressState.h"
#include "shared/WebcamGlobal.h"

#include <QDir>
#include <QFileInfo>
#include <QtDebug>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize newProjectFrame(1280, 720);

/// The project file for what the user typed: its folder and its name up to the first dot.
QString projectPathFor(const QString &chosen)
{
    const QFileInfo file(chosen);
    return QDir::cleanPath(file.absolutePath() + u'/' + file.baseName() + u'.' + morvane::projectExtension);
}

} // namespace

bool ProjectLifecycle::saveProjectXmlFile(int saveMode)
{
    if (saveMode == Zum::NewProject && postponeFor(Zum::CreateProjectAfterConfirm))
        return false;
    const int mode = legacyProject() ? int(Zum::SaveProjectAs) : saveMode;
    if (!isWritable(mode))
        return false;
    if (mode != Zum::NewProject && mode != Zum::SaveProjectAs)
        return saveInPlace(mode);
    if (mode == Zum::NewProject)
        forgetAfterConfirm();
    const QString path = chooseSavePath(mode);
    if (path.isEmpty()) {
        forgetAfterConfirm();
        return false;
    }
    return mode == Zum::NewProject ? createProject(path) : saveAs(path);
}

// What is only half in the timeline must not replace the whole on the disk.
bool ProjectLifecycle::isWritable(int saveMode)
{
    if (saveMode == Zum::NewProject || m_projectLoaded)
        return true;
    if (m_paths.projPath().isEmpty()) {
        qDebug("Project path is empty. Cannot save");
        return false;
    }
    qDebug("saveProjectXmlFile: Project is not loaded completely. Cannot save");
    m_services.messages.post(Zum::FileMessage, Zum::Warning,
                             tr("The project is not loaded completely and was not saved"));
    return false;
}

QString ProjectLifecycle::chooseSavePath(int saveMode)
{
    morvane::Dialogs &dialogs = m_services.dialogs;
    const QString caption = saveMode == Zum::NewProject ? tr("Create New Project...") : tr("Save Project...");
    const QString chosen = dialogs.saveFile(caption, m_paths.projDirPath(),
                                            FileSelection::requestFor(Zum::NewProjectFilesFilter).filter,
                                            morvane::projectExtension);
    if (chosen.isEmpty())
        return {};
    const QString path = projectPathFor(chosen);
    // The file dialog has asked only about the name that was typed.
    const bool isOtherFile = path != QDir::cleanPath(QFileInfo(chosen).absoluteFilePath());
    if (isOtherFile && QFileInfo::exists(path)
        && dialogs.ask(tr("File Already Exists"), tr("'%1' already exists. Replace it?").arg(path),
                       tr("Replace"), {})
               != morvane::Dialogs::Answer::Yes)
        return {};
    return lockAllows(path) ? path : QString();
}

bool ProjectLifecycle::createProject(const QString &path)
{
    const QFileInfo file(path);
    const bool fits =
        file.exists() ? file.isFile() && file.isWritable() : QFileInfo(file.absolutePath()).isWritable();
    if (!fits) {
        m_report.tellSaveFailed(path, tr("'%1' cannot be written").arg(path));
        return false;
    }
    m_paths.setProjPath(path);
    resetProject(Reset::BeforeNewProject);
    WebcamGlobal &global = m_services.global;
    global.setCropAreaW(newProjectFrame.width());
    global.setCropAreaH(newProjectFrame.height());
    global.setCropAreaOn(true);
    if (!write(ProjectMapping::Rows::LeaveOut)) {
        resetProject(Reset::Closing);
        return false;
    }
    m_lock.take(path);
    emit m_paths.projPathChanged(true);
    emit connectModel();
    m_frames.setLoaded(true);
    setProjectLoaded(true);
    setAllowQuietExit(true);
    global.setProjectChanged(false);
    return true;
}

bool ProjectLifecycle::saveAs(const QString &path)
{
    const QString oldPath = m_paths.projPath();
    const ProjectTree oldTree = m_paths.tree();
    m_paths.setProjPath(path);
    if (!write(ProjectMapping::Rows::Include)) {
        m_paths.setProjPath(oldPath);
        return false;
    }
    setLegacyProject(false);
    m_lock.take(path);
    emit m_paths.projPathChanged(false);
    if (!m_operation.isFree()) {
        qDebug("saveProjectXmlFile: Cannot copy frames on Save As project. Thread is busy");
        return true;
    }
    m_operation.continueWith(Zum::OCopyFramesOnSaveAs);
    m_endsSave = true;
    m_operationGeneration = m_generation;
    m_files.copyProjectFolders(oldTree, m_paths.tree());
    return true;
}

bool ProjectLifecycle::saveInPlace(int saveMode)
{
    if (saveMode == Zum::SaveProjectXMLonly) {
        m_saves.save(m_paths.projPath(), m_mapping.collect());
        noteWritten();
        markSaved();
        return true;
    }
    if (!write(ProjectMapping::Rows::Include))
        return false;
    if (saveMode == Zum::SaveProjectAndCleanup) {
        if (!m_operation.isFree()) {
            qDebug("saveProjectXmlFile: Cannot cleanup on Save project. Thread is busy");
        } else {
            m_operation.continueWith(Zum::OCleanupProject);
            m_endsSave = startCleanup(ProjectCleanup::allFolders);
        }
    } else if (m_operation.isFree()) {
        markSaved();
    } else {
        qDebug("saveProjectXmlFile: Zum::SaveProject. Thread is busy!");
    }
    return true;
}

bool ProjectLifecycle::write(ProjectMapping::Rows rows)
{
    // An older state must not come after this one.
    finishSaves();
    const AtomicFile::Result result = ProjectWriter::save(m_paths.projPath(), m_mapping.collect(rows));
    if (!result.ok) {
        tellOfFailure(m_paths.projPath(), result.reason);
        return false;
    }
    noteWritten();
    return true;
}

void ProjectLifecycle::noteWritten()
{
    m_changedSinceWrite = false;
    emit windowModifiedChanged(false);
}

void ProjectLifecycle::tellOfFailure(const QString &path, const QString &reason)
{
    m_report.tellSaveFailed(path, reason);
    // Quitting or opening another project must not follow a later save by surprise.
    forgetAfterConfirm();
}

void ProjectLifecycle::finishSaves()
{
    m_saves.finish();
}

void ProjectLifecycle::onSaved(const QString &path, const AtomicFile::Result &result)
{
    if (result.ok)
        return;
    tellOfFailure(path, result.reason);
    if (path == m_paths.projPath())
        projectChanged();
}

void ProjectLifecycle::markSaved()
{
    if (m_services.global.projectChanged())
        m_services.global.setProjectChanged(false);
    else
        projectSaved();
}

void ProjectLifecycle::onProjectCopied(FrameFileOperations::End end, int failures)
{
    m_services.progress.stopProgress();
    m_operation.end();
    warnOfFailures(failures);
    const bool endsSave = std::exchange(m_endsSave, false);
    if (m_operationGeneration != m_generation)
        return;
    if (end == FrameFileOperations::End::Cancelled) {
        forgetAfterConfirm();
        m_services.messages.post(Zum::FileMessage, Zum::Warning,
                                 tr("Copying was stopped. Not all pictures of the project are in '%1'")
                                     .arg(m_paths.projContntDirPath()));
        return;
    }
    if (endsSave && !m_changedSinceWrite)
        markSaved();
}

bool ProjectLifecycle::startCleanup(ProjectCleanup::Folders folders)
{
    ProjectCleanup::Keep keep =
        ProjectCleanup::Keep::of(m_frames.projectFrames(), m_services.global.backgroundImage());
    const ProjectTree &tree = m_paths.tree();
    if (ProjectCleanup::sharesContentFolder(tree)) {
        folders &= ~(ProjectCleanup::Captured | ProjectCleanup::Reference | ProjectCleanup::Background);
        m_services.messages.post(
            Zum::FileMessage, Zum::Warning,
            tr("Another project uses the same folder: its pictures were not cleaned up"));
    }
    m_operationGeneration = m_generation;
    return m_files.cleanup(folders, keep, tree);
}

void ProjectLifecycle::onCleanedUp(FrameFileOperations::End, int failures)
{
    m_services.progress.stopProgress();
    m_operation.end();
    warnOfFailures(failures);
    const bool endsSave = std::exchange(m_endsSave, false);
    if (endsSave && !m_changedSinceWrite && m_operationGeneration == m_generation)
        markSaved();
}

void ProjectLifecycle::cleanExtractedDir()
{
    m_operation.announce();
    startCleanup(ProjectCleanup::Extracted);
}

void ProjectLifecycle::cleanCacheDirs()
{
    m_operation.announce();
    if (m_projectLoaded)
        startCleanup(ProjectCleanup::Cache);
}
