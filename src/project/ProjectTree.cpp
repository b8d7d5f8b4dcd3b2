#include "project/ProjectTree.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

bool isNetworkPath(const QString &path)
{
    return path.startsWith("//"_L1) && !path.startsWith("///"_L1);
}

QString folderOfFile(const QString &path)
{
    const QString absolute = isNetworkPath(path) ? path : QFileInfo(path).absoluteFilePath();
    return absolute.left(absolute.lastIndexOf(u'/') + 1);
}

} // namespace

QString ProjectTree::cleanedFolder(const QString &path)
{
    QString cleaned = QDir::cleanPath(path);
    if (isNetworkPath(path) && !cleaned.startsWith("//"_L1))
        cleaned.prepend(u'/');
    return cleaned.endsWith(u'/') ? cleaned : cleaned + u'/';
}

ProjectTree ProjectTree::of(const QString &projPath, const QString &homePath)
{
    ProjectTree tree;
    tree.projPath = projPath;
    if (projPath.isEmpty()) {
        tree.projDirPath = homePath + u'/';
    } else {
        tree.projName = QFileInfo(projPath).baseName();
        tree.projDirPath = cleanedFolder(folderOfFile(projPath));
    }
    tree.projContntDirPath = cleanedFolder(tree.projDirPath + tree.projName + "_files"_L1);
    const QString &content = tree.projContntDirPath;
    tree.capFullDirPath = content + "cap/"_L1;
    tree.capTiffDirPath = tree.capFullDirPath + "tiff/"_L1;
    tree.capRawDirPath = tree.capFullDirPath + "raw/"_L1;
    tree.metaDirPath = tree.capFullDirPath + "meta/"_L1;
    tree.capTumbDirPath = tree.capFullDirPath + "tmb/"_L1;
    tree.recycleBinDirPath = tree.capTumbDirPath + "/recyclebin/"_L1;
    tree.refFullDirPath = content + "ref/"_L1;
    tree.backgroundDirPath = content + "bg/"_L1;
    tree.refTumbDirPath = tree.refFullDirPath + "tmb/"_L1;
    tree.videoDirPath = content + "video/"_L1;
    tree.tempDirPath = content + "tmp/"_L1;
    tree.sessionLogPath = tree.tempDirPath + "session.log"_L1;
    tree.cacheDirPath = tree.tempDirPath + "cache/"_L1;
    tree.extractedDirPath = tree.tempDirPath + "extracted/"_L1;
    tree.camPresetsFullDirPath = content + "presets/"_L1;
    return tree;
}
