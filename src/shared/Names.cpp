#include "shared/Names.h"

#include <QStringList>

namespace morvane {

bool suffixInFilters(const QString &suffix, const QString &filters)
{
    const QStringList patterns = filters.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return patterns.contains(QStringLiteral("*.") + suffix);
}

} // namespace morvane
