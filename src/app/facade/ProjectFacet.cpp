#include "app/facade/ProjectFacet.h"

#include "app/AppControllers.h"
#include "project/FileFacts.h"
#include "project/ProjectPresetList.h"
#include "shared/Names.h"
#include "shared/PathText.h"

ProjectFacet::ProjectFacet(std::unique_ptr<AppControllers> controllers) : JobsFacet(std::move(controllers))
{
    const ProjectLifecycle &life = this->controllers().lifecycle;
    connect(&life, &ProjectLifecycle::projLoadedChanged, this, &ProjectFacet::projLoadedChanged);
    connect(&life, &ProjectLifecycle::allowQuietExitChanged, this, &ProjectFacet::allowQuietExitChanged);
    connect(&life, &ProjectLifecycle::loadingProjectChanged, this, &ProjectFacet::loadingProjectChanged);
    connect(&life, &ProjectLifecycle::legacyProjectChanged, this, &ProjectFacet::legacyProjectChanged);
    connect(&life, &ProjectLifecycle::performAutosaveChanged, this, &ProjectFacet::performAutosaveChanged);
    connect(&life, &ProjectLifecycle::pauseAutosaveChanged, this, &ProjectFacet::pauseAutosaveChanged);
    connect(&life, &ProjectLifecycle::autosaveDelayChanged, this, &ProjectFacet::autosaveDelayChanged);
    connect(&life, &ProjectLifecycle::startProjectLoad, this, &ProjectFacet::startProjectLoad);
    connect(&life, &ProjectLifecycle::beginLoadProject, this, &ProjectFacet::beginLoadProject);
    const RobotSupervisor &robot = this->controllers().robot;
    connect(&robot, &RobotSupervisor::connectModel, this, &ProjectFacet::connectModel);
    connect(&robot, &RobotSupervisor::disconnectModel, this, &ProjectFacet::disconnectModel);
    connect(&life, &ProjectLifecycle::connectModel, this, &ProjectFacet::connectModel);
    connect(&life, &ProjectLifecycle::disconnectModel, this, &ProjectFacet::disconnectModel);
    connect(&life, &ProjectLifecycle::confirmClose, this, &ProjectFacet::confirmClose);
    connect(&this->controllers().operation, &ThreadOperation::currentThreadOperationChanged, this,
            &ProjectFacet::currentThreadOperationChanged);
    connectPaths();
}

void ProjectFacet::connectPaths()
{
    const ProjectPaths &paths = controllers().paths;
    // The path is also forgotten, which the keeper of the paths does not announce.
    connect(&controllers().lifecycle, &ProjectLifecycle::projPathChanged, this,
            &ProjectFacet::projPathChanged);
    connect(&paths, &ProjectPaths::projNameChanged, this, &ProjectFacet::projNameChanged);
    connect(&paths, &ProjectPaths::projDirPathChanged, this, &ProjectFacet::projDirPathChanged);
    connect(&paths, &ProjectPaths::projContntDirPathChanged, this, &ProjectFacet::projContntDirPathChanged);
    connect(&paths, &ProjectPaths::capFullDirPathChanged, this, &ProjectFacet::capFullDirPathChanged);
    connect(&paths, &ProjectPaths::capTumbDirPathChanged, this, &ProjectFacet::capTumbDirPathChanged);
    connect(&paths, &ProjectPaths::refFullDirPathChanged, this, &ProjectFacet::refFullDirPathChanged);
    connect(&paths, &ProjectPaths::refTumbDirPathChanged, this, &ProjectFacet::refTumbDirPathChanged);
    connect(&paths, &ProjectPaths::videoDirPathChanged, this, &ProjectFacet::videoDirPathChanged);
    connect(&paths, &ProjectPaths::extractedDirPathChanged, this, &ProjectFacet::extractedDirPathChanged);
}

bool ProjectFacet::projectLoaded() const
{
    return controllers().lifecycle.projectLoaded();
}

bool ProjectFacet::allowQuietExit() const
{
    return controllers().lifecycle.allowQuietExit();
}

void ProjectFacet::setAllowQuietExit(bool allow)
{
    controllers().lifecycle.setAllowQuietExit(allow);
}

bool ProjectFacet::loadingProject() const
{
    return controllers().lifecycle.loadingProject();
}

bool ProjectFacet::legacyProject() const
{
    return controllers().lifecycle.legacyProject();
}

bool ProjectFacet::performAutosave() const
{
    return controllers().lifecycle.performAutosave();
}

void ProjectFacet::setPerformAutosave(bool perform)
{
    controllers().lifecycle.setPerformAutosave(perform);
}

bool ProjectFacet::pauseAutosave() const
{
    return controllers().lifecycle.pauseAutosave();
}

void ProjectFacet::setPauseAutosave(bool pause)
{
    controllers().lifecycle.setPauseAutosave(pause);
}

int ProjectFacet::autosaveDelay() const
{
    return controllers().lifecycle.autosaveDelay();
}

void ProjectFacet::setAutosaveDelay(int minutes)
{
    controllers().lifecycle.setAutosaveDelay(minutes);
}

int ProjectFacet::autosaveDelayMin() const
{
    return morvane::autosaveDelayMinMinutes;
}

int ProjectFacet::autosaveDelayMax() const
{
    return morvane::autosaveDelayMaxMinutes;
}

int ProjectFacet::currentThreadOperation() const
{
    return controllers().operation.currentThreadOperation();
}

QVariantList ProjectFacet::proportions() const
{
    const QList<QRectF> &all = morvane::proportions();
    return {all.cbegin(), all.cend()};
}

QVariantList ProjectFacet::presetsWidths() const
{
    const QList<int> &all = morvane::presetsWidths();
    return {all.cbegin(), all.cend()};
}

QVariantList ProjectFacet::projectPresets() const
{
    return morvane::projectPresets();
}

QString ProjectFacet::projPath() const
{
    return controllers().paths.projPath();
}

QString ProjectFacet::projName() const
{
    return controllers().paths.projName();
}

QString ProjectFacet::projDirPath() const
{
    return controllers().paths.projDirPath();
}

QString ProjectFacet::projContntDirPath() const
{
    return controllers().paths.projContntDirPath();
}

QString ProjectFacet::capFullDirPath() const
{
    return controllers().paths.capFullDirPath();
}

QString ProjectFacet::capTumbDirPath() const
{
    return controllers().paths.capTumbDirPath();
}

QString ProjectFacet::refFullDirPath() const
{
    return controllers().paths.refFullDirPath();
}

QString ProjectFacet::refTumbDirPath() const
{
    return controllers().paths.refTumbDirPath();
}

QString ProjectFacet::videoDirPath() const
{
    return controllers().paths.videoDirPath();
}

QString ProjectFacet::extractedDirPath() const
{
    return controllers().paths.extractedDirPath();
}

int ProjectFacet::openProject(const QString &path)
{
    return controllers().lifecycle.openProject(path);
}

int ProjectFacet::projectFileOpen(const QString &path)
{
    return controllers().lifecycle.projectFileOpen(path);
}

int ProjectFacet::projectFileOpen()
{
    return controllers().lifecycle.projectFileOpen();
}

int ProjectFacet::readProjectXmlFile()
{
    return controllers().lifecycle.readProjectXmlFile();
}

bool ProjectFacet::saveProjectXmlFile(int saveMode)
{
    return controllers().lifecycle.saveProjectXmlFile(saveMode);
}

void ProjectFacet::projectChanged()
{
    controllers().lifecycle.projectChanged();
}

void ProjectFacet::projectSaved()
{
    controllers().lifecycle.projectSaved();
}

void ProjectFacet::autosaveTick()
{
    controllers().lifecycle.autosaveTick();
}

void ProjectFacet::closeProject()
{
    controllers().lifecycle.closeProject();
}

void ProjectFacet::renameProject(const QString &newName)
{
    controllers().lifecycle.renameProject(newName);
}

void ProjectFacet::stopLoadingProject()
{
    controllers().lifecycle.stopLoadingProject();
}

void ProjectFacet::addLastProject()
{
    controllers().lifecycle.addLastProject();
}

bool ProjectFacet::importFrames()
{
    return controllers().lifecycle.importFrames();
}

void ProjectFacet::cleanExtractedDir()
{
    controllers().lifecycle.cleanExtractedDir();
}

void ProjectFacet::cleanCacheDirs()
{
    controllers().lifecycle.cleanCacheDirs();
}

bool ProjectFacet::setProjectDirPath(bool emitUpdateSignal)
{
    return controllers().paths.setProjectDirPath(emitUpdateSignal);
}

QString ProjectFacet::buildImagePath(int type, const QString &subpath, bool noPrefix) const
{
    return controllers().paths.buildImagePath(type, subpath, noPrefix);
}

QString ProjectFacet::buildImagePath(int type, const QString &subpath) const
{
    return controllers().paths.buildImagePath(type, subpath);
}

QString ProjectFacet::buildMediaPath(const QString &path) const
{
    return controllers().paths.buildMediaPath(path);
}

QString ProjectFacet::projectName(bool returnBaseName) const
{
    return controllers().paths.projectName(returnBaseName);
}

QString ProjectFacet::projectName() const
{
    return controllers().paths.projectName();
}

QString ProjectFacet::projectBaseName() const
{
    return controllers().paths.projectBaseName();
}

QVariantMap ProjectFacet::projectDirInfo(const QString &takeThisProjectPath) const
{
    return controllers().paths.projectDirInfo(takeThisProjectPath);
}

QVariantMap ProjectFacet::projectDirInfo() const
{
    return controllers().paths.projectDirInfo();
}

QVariantMap ProjectFacet::fileInfo(const QString &path, bool isImage) const
{
    return morvane::fileInfo(path, isImage);
}

QVariantMap ProjectFacet::fileInfo(const QString &path) const
{
    return morvane::fileInfo(path);
}

QVariantMap ProjectFacet::urlInfo(const QString &path, bool isImage) const
{
    return morvane::urlInfo(path, isImage);
}

QVariantMap ProjectFacet::urlInfo(const QString &path) const
{
    return morvane::urlInfo(path);
}

QVariantList ProjectFacet::listDir(const QString &path, int ftype) const
{
    return morvane::listDir(path, ftype);
}

QVariantList ProjectFacet::listDir(const QString &path) const
{
    return morvane::listDir(path);
}

bool ProjectFacet::fileExists(const QString &path) const
{
    return morvane::fileExists(path);
}

bool ProjectFacet::deleteFile(const QString &path)
{
    return morvane::deleteFile(path);
}
