#include "project/BackgroundImage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtDebug>

namespace morvane {

QString adoptBackgroundImage(const QString &path, const QString &backgroundFolder)
{
    const QString name = QFileInfo(path).fileName();
    const QString target = backgroundFolder + name;
    if (name.isEmpty() || !QDir::isAbsolutePath(path) || QFile::exists(target))
        return name;
    // What is in the way now can only be a link that leads nowhere.
    QFile::remove(target);
    if (!QFile::copy(path, target))
        qWarning().noquote() << "Error copyng to" << target;
    return name;
}

} // namespace morvane
