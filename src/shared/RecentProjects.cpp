#include "shared/RecentProjects.h"

#include "shared/Names.h"
#include "shared/Settings.h"
#include "shared/StringText.h"

#include <algorithm>
#include <QLocale>
#include <QVariantMap>

namespace {

const QString sortKey = QStringLiteral("sortkey");

qreal ageRank(const QVariant &entry)
{
    return entry.toMap().value(sortKey).toReal();
}

} // namespace

RecentProjects::RecentProjects(Settings &settings, Clock clock)
    : m_settings(settings), m_clock(std::move(clock))
{
}

bool RecentProjects::add(const Project &project)
{
    if (project.legacy || project.path.isEmpty() || project.name == QLatin1String("default")
        || morvane::cleanStr(project.name).isEmpty())
        return false;
    const QDateTime now = m_clock();
    const QVariantMap entry{
        {sortKey, now.toString(QStringLiteral("yyyyMMddhhmmss")).toDouble()},
        {QStringLiteral("lastModifiedTime"), now.toString(QStringLiteral("hh:mm:ss"))},
        // The names of month and day are for reading, so they come in the user's language.
        {QStringLiteral("lastModifiedDate"), QLocale().toString(now, QStringLiteral("dd MMMM, dddd yyyy"))},
        {QStringLiteral("name"), project.name},
        {QStringLiteral("frames"), static_cast<qreal>(project.frames)},
        {QStringLiteral("path"), project.path},
        {QStringLiteral("framesize"),
         QStringLiteral("%1 x %2").arg(project.frameSize.width()).arg(project.frameSize.height())},
        {QStringLiteral("tmb"), project.thumbnailUrl},
        {QStringLiteral("suffix"), QString()},
    };
    m_settings.setGroupValue(morvane::lastProjectsKey, project.name, entry);
    trim();
    return true;
}

void RecentProjects::trim()
{
    const QVariantMap entries = m_settings.groupValues(morvane::lastProjectsKey);
    QStringList newestFirst = entries.keys();
    std::stable_sort(newestFirst.begin(), newestFirst.end(), [&entries](const QString &a, const QString &b) {
        return ageRank(entries.value(a)) > ageRank(entries.value(b));
    });
    for (const QString &key : newestFirst.mid(limit))
        m_settings.removeGroupValue(morvane::lastProjectsKey, key);
}
