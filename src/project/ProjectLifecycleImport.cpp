// Taking over the frames of another project.
#include "project/ProjectFrames.h"
#include "project/ProjectLifecycle.h"
#include "project/ProjectPathCheck.h"
#include "project/ProjectPaths.h"
#include "project/ThreadOperation.h"
#include "shared/Dialogs.h"
#include "shared/FileSelection.h"
#include "shared/MessageCentre.h"
#include "shared/PathText.h"
#include "shared/ProgressState.h"

#include <QFileInfo>
#include <QtDebug>

using namespace Qt::StringLiterals;

bool ProjectLifecycle::importFrames()
{
    const QString path = m_services.files.openFileDialog(Zum::NewProjectFilesFilter);
    if (path.isEmpty() || !m_projectLoaded || m_reading || reportPathProblem(path))
        return false;
    const QString folder = morvane::ensureDirSeparator(ProjectPathCheck::contentFolder(path));
    if (QFileInfo(folder) == QFileInfo(m_paths.projContntDirPath())) {
        m_services.dialogs.warn(tr("Import Project"), tr("Cannot import project to itself"));
        return false;
    }
    const std::optional<QList<ProjectFrame>> frames = readImportedFrames(path);
    if (!frames)
        return false;
    if (!m_operation.isFree()) {
        qDebug("doCopyFrames: Thread is busy");
        return false;
    }
    emit disconnectModel();
    m_operation.begin(Zum::OCopyFrames);
    m_services.progress.setProgressAction(tr("Copy frames..."));
    m_services.progress.setProgressCurrent(0);
    m_services.progress.setProgressTotal(int(frames->size()));
    m_operationGeneration = m_generation;
    setLoadingProject(true);
    const ProjectTree from = ProjectTree::of(path, {});
    return m_files.copyFrames(*frames, from, m_paths.tree());
}

std::optional<QList<ProjectFrame>> ProjectLifecycle::readImportedFrames(const QString &path)
{
    const int generation = m_generation;
    const ProjectReadResult result = readInPool(path);
    if (generation != m_generation || !m_projectLoaded)
        return {};
    if (result.status == ProjectReadResult::Status::Legacy) {
        m_services.messages.reportError(tr(
            "A project of the older format cannot be imported. Open it, save it, and import what was saved"));
        return {};
    }
    if (m_report.tell(result, path) != Zum::FileIsOk) {
        m_services.progress.setProgressTotal(0);
        return {};
    }
    return result.document.frames;
}

void ProjectLifecycle::onFramesCopied(FrameFileOperations::End end, const QList<ProjectFrame> &frames,
                                      int failures)
{
    if (m_operationGeneration != m_generation || end == FrameFileOperations::End::Cancelled) {
        m_services.progress.stopProgress();
        emit connectModel();
        m_operation.end();
        return;
    }
    warnOfFailures(failures);
    qDebug("Finished coping frames on import");
    qDebug("Import farmes");
    saveProjectXmlFile(Zum::SaveProjectXMLonly);
    if (frames.isEmpty()) {
        finishLoad();
        return;
    }
    m_operation.continueWith(Zum::OAddFrames);
    m_frames.setLoaded(false);
    setProjectLoaded(false);
    m_importing = true;
    startAdding(frames, tr("Import frames..."));
}
