#include "project/ProjectPaths.h"

#include "project/FileFacts.h"
#include "shared/Names.h"
#include "shared/PathText.h"
#include "shared/Settings.h"
#include "shared/Zum.h"

#include <QFileInfo>
#include <QtDebug>

using namespace Qt::StringLiterals;

namespace {

template <typename... Arguments>
void call(const std::function<void(Arguments...)> &hook, const std::type_identity_t<Arguments> &...arguments)
{
    if (hook)
        hook(arguments...);
}

QString existingOrEmpty(const QString &path)
{
    return QFileInfo::exists(path) ? path : QString();
}

} // namespace

ProjectPaths::ProjectPaths(Settings &settings, Hooks hooks, const QString &homePath, QObject *parent)
    : QObject(parent), m_settings(settings), m_hooks(std::move(hooks)), m_homePath(homePath)
{
    m_tree.projDirPath = m_homePath + u'/';
    connect(this, &ProjectPaths::projPathChanged, this, &ProjectPaths::setProjectDirPath);
}

void ProjectPaths::setProjPath(const QString &path)
{
    m_projPath = path;
}

void ProjectPaths::clear(bool projPathToo)
{
    m_tree = {};
    m_tree.projDirPath = m_homePath + u'/';
    if (projPathToo)
        m_projPath.clear();
    publishFolders();
    call(m_hooks.resetTitle);
}

bool ProjectPaths::setProjectDirPath(bool emitUpdateSignal)
{
    call(m_hooks.closeSessionLog);
    const ProjectTree next = ProjectTree::of(m_projPath, m_homePath);
    m_tree.projPath = next.projPath;
    m_tree.projDirPath = next.projDirPath;
    m_tree.projName = next.projName;
    if (!m_projPath.isEmpty()) {
        emit projNameChanged();
        m_settings.setValue(u"lastprojdirpath"_s, m_tree.projDirPath);
    }
    emit projDirPathChanged();
    m_tree.projContntDirPath = next.projContntDirPath;
    m_tree.camPresetsFullDirPath = next.camPresetsFullDirPath;

    takeFrameFolders(next, emitUpdateSignal);
    takeTemporaryFolder(next);
    const bool ready = makeFolders();
    publishFolders();
    if (!ready)
        qDebug().noquote() << "Error. Cannot create project contents folder:" << m_tree.projContntDirPath;
    else if (emitUpdateSignal)
        emit projContntDirPathChanged();
    call(m_hooks.resetTitle);
    return ready;
}

void ProjectPaths::takeFrameFolders(const ProjectTree &next, bool emitUpdateSignal)
{
    const auto announce = [&](void (ProjectPaths::*changed)()) {
        if (emitUpdateSignal)
            emit(this->*changed)();
    };
    m_tree.capFullDirPath = next.capFullDirPath;
    announce(&ProjectPaths::capFullDirPathChanged);
    m_tree.capTiffDirPath = next.capTiffDirPath;
    m_tree.capRawDirPath = next.capRawDirPath;
    m_tree.metaDirPath = next.metaDirPath;
    m_tree.capTumbDirPath = next.capTumbDirPath;
    announce(&ProjectPaths::capTumbDirPathChanged);
    m_tree.recycleBinDirPath = next.recycleBinDirPath;
    m_tree.refFullDirPath = next.refFullDirPath;
    announce(&ProjectPaths::refFullDirPathChanged);
    m_tree.backgroundDirPath = next.backgroundDirPath;
    m_tree.refTumbDirPath = next.refTumbDirPath;
    announce(&ProjectPaths::refTumbDirPathChanged);
    m_tree.videoDirPath = next.videoDirPath;
    announce(&ProjectPaths::videoDirPathChanged);
}

void ProjectPaths::takeTemporaryFolder(const ProjectTree &next)
{
    m_tree.tempDirPath.clear();
    m_tree.sessionLogPath.clear();
    m_tree.cacheDirPath.clear();
    m_tree.extractedDirPath.clear();
    if (!morvane::ensureFolder(next.tempDirPath)) {
        qDebug("Error: Cannot create tmp dir");
        return;
    }
    m_tree.tempDirPath = next.tempDirPath;
    m_tree.sessionLogPath = next.sessionLogPath;
    call(m_hooks.openSessionLog, m_tree.sessionLogPath);
    m_tree.cacheDirPath = next.cacheDirPath;
    if (!morvane::ensureFolder(m_tree.cacheDirPath))
        qDebug("Failed to create cache dir");
    m_tree.extractedDirPath = next.extractedDirPath;
    if (!morvane::ensureFolder(m_tree.extractedDirPath))
        qDebug("Failed to create import dir");
    emit extractedDirPathChanged();
}

// Without a temporary folder the others are only looked at: the place takes no folders.
bool ProjectPaths::makeFolders() const
{
    const bool mayMake = !m_tree.tempDirPath.isEmpty();
    const auto isThere = [mayMake](const QString &folder) {
        return mayMake ? morvane::ensureFolder(folder) : QFileInfo(folder).isDir();
    };
    const bool thumbnails = isThere(m_tree.capTumbDirPath);
    const bool referenceThumbnails = isThere(m_tree.refTumbDirPath);
    isThere(m_tree.backgroundDirPath);
    isThere(m_tree.metaDirPath);
    const bool videos = isThere(m_tree.videoDirPath);
    return thumbnails && referenceThumbnails && videos;
}

void ProjectPaths::publishFolders()
{
    call(m_hooks.setFrameFolders, frameFolders());
    Zum::setProjectFolders({m_tree.projContntDirPath, m_tree.capFullDirPath, m_tree.refFullDirPath,
                            m_tree.backgroundDirPath, m_tree.extractedDirPath});
}

QVariantMap ProjectPaths::frameFolders() const
{
    return {
        {u"capFull"_s, m_tree.capFullDirPath},
        {u"capTumb"_s, m_tree.capTumbDirPath},
        {u"refFull"_s, m_tree.refFullDirPath},
        {u"refTumb"_s, m_tree.refTumbDirPath},
        {QString::number(Zum::BackgroundFull), m_tree.backgroundDirPath},
    };
}

QString ProjectPaths::folderOfRole(int type) const
{
    switch (type) {
        case Zum::CapFull:
            return m_tree.capFullDirPath;
        case Zum::CapTumb:
            return m_tree.capTumbDirPath;
        case Zum::RefFull:
            return m_tree.refFullDirPath;
        case Zum::RefTumb:
            return m_tree.refTumbDirPath;
        case Zum::BackgroundFull:
            return m_tree.backgroundDirPath;
        default:
            return {};
    }
}

QString ProjectPaths::buildImagePath(int type, const QString &subpath, bool noPrefix) const
{
    if (subpath.isEmpty())
        return morvane::emptyFrameImage;
    if (subpath.startsWith(morvane::fileUrlPrefix) || subpath.startsWith("image://"_L1))
        return subpath;
    const QString base = QFileInfo(subpath).baseName();
    if (type == Zum::CapTIFF)
        return existingOrEmpty(m_tree.capTiffDirPath + base + ".tiff"_L1);
    if (type == Zum::CapRAW) {
        for (const QLatin1StringView suffix : {".crw"_L1, ".raw"_L1, ".cr2"_L1}) {
            const QString path = existingOrEmpty(m_tree.capRawDirPath + base + suffix);
            if (!path.isEmpty())
                return path;
        }
        return {};
    }
    const QString path = folderOfRole(type) + subpath;
    if (!QFileInfo::exists(path))
        return morvane::emptyFrameImage;
    return noPrefix ? path : buildMediaPath(path);
}

QString ProjectPaths::buildMediaPath(const QString &path) const
{
    if (path.isEmpty())
        return {};
    return path.startsWith("//"_L1) ? "file:"_L1 + path : morvane::fileUrlPrefix + path;
}

QString ProjectPaths::projectName(bool returnBaseName) const
{
    const QFileInfo file(m_projPath);
    return returnBaseName ? file.baseName() : file.fileName();
}

QString ProjectPaths::projectBaseName() const
{
    return projectName(true);
}

QVariantMap ProjectPaths::projectDirInfo(const QString &takeThisProjectPath) const
{
    const QString &path = takeThisProjectPath.isEmpty() ? m_projPath : takeThisProjectPath;
    return morvane::projectDirInfo(ProjectTree::of(path, m_homePath));
}
