#include "shared/NumberText.h"

namespace morvane {

QString formatNumber(int value, int size)
{
    return QStringLiteral("00000000%1").arg(value).right(size);
}

QString formatSetOfNumbers(const QVariantList &values, const QString &separator, int size)
{
    QString text;
    for (const QVariant &value : values) {
        if (value.typeId() != QMetaType::Int)
            continue;
        text += formatNumber(value.toInt(), size) + separator;
    }
    text.chop(1);
    return text;
}

} // namespace morvane
