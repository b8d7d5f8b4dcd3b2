#include "shared/PathText.h"

#include "shared/Names.h"

#include <QDir>
#include <QFileInfo>

namespace morvane {

QString ensureDirSeparator(const QString &path)
{
    if (path.isEmpty() || path.endsWith(QLatin1Char('/')))
        return path;
    if (path.endsWith(QLatin1Char('\\')))
        return path.chopped(1) + QLatin1Char('/');
    return path + QLatin1Char('/');
}

QString withoutFilePrefix(const QString &path)
{
    if (!path.startsWith(fileUrlPrefix))
        return path;
    const QString rest = path.mid(fileUrlPrefix.size());
    // A path of this system begins with the slash that the prefix of three took along.
    return QDir::isAbsolutePath(rest) ? rest : QLatin1Char('/') + rest;
}

bool fileExists(const QString &path)
{
    return QFileInfo::exists(withoutFilePrefix(path));
}

bool ensureFolder(const QString &path)
{
    const QDir folder(path);
    return folder.exists() || QDir().mkpath(folder.absolutePath());
}

QString uniqueFilePath(const QString &wanted, const QTime &now)
{
    const QFileInfo info(wanted);
    if (!info.exists() || !info.isWritable())
        return wanted;
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    return info.path() + QLatin1Char('/') + info.completeBaseName() + QLatin1Char('_')
           + now.toString(QStringLiteral("ddhhmmss")) + suffix;
}

} // namespace morvane
