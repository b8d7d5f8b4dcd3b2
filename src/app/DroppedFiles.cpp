#include "app/DroppedFiles.h"

#include "shared/Names.h"
#include "shared/Zum.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace {

QString pathOf(const QUrl &url)
{
    if (url.isLocalFile())
        return url.toLocalFile();
    static const QRegularExpression prefix(QStringLiteral("^(file:/{2,3})|(qrc:/{2})|(http:/{2})"));
    return url.toString().remove(prefix);
}

} // namespace

DroppedFile droppedFile(const QList<QUrl> &urls, int currentTab)
{
    if (urls.size() != 1)
        return {};
    const QString path = pathOf(urls.constFirst());
    const QFileInfo info(path);
    if (!info.exists() || !info.isFile() || info.isExecutable() || info.isBundle())
        return {};
    const QString suffix = info.suffix().toLower();
    if (suffix == morvane::projectExtension)
        return {DroppedFile::Kind::Project, path};
    if (currentTab == Zum::VideoTab && morvane::suffixInFilters(suffix, morvane::videoFilters))
        return {DroppedFile::Kind::Video, path};
    if (morvane::suffixInFilters(suffix, morvane::importImageFilters))
        return {DroppedFile::Kind::Image, path};
    return {};
}
