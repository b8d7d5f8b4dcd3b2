#include "capture/CaptureNaming.h"

#include "shared/Names.h"

#include <QDateTime>
#include <QRegularExpression>

namespace capturenaming {

Names namesOf(const Rules &rules, const QString &counter, const QString &timeStamp)
{
    const QString tail = counter + QLatin1Char('_') + timeStamp + QLatin1Char('.');
    const QString begin = rules.useMask ? rules.mask : QStringLiteral("frame");
    const QString label = rules.useMask ? QStringLiteral("_") : rules.frameLabel;
    return {begin + label + tail + rules.frameExt, begin + rules.thumbLabel + tail + rules.thumbExt};
}

QString nextSecond(const QString &path)
{
    static const QRegularExpression stamped(QStringLiteral("^(.*_)(\\d{12})(\\.[^./]*)$"));
    const QRegularExpressionMatch stamp = stamped.match(path);
    if (stamp.hasMatch()) {
        const QDateTime moment = QDateTime::fromString(stamp.captured(2), morvane::timeStampFormat);
        if (moment.isValid())
            return stamp.captured(1) + moment.addSecs(1).toString(morvane::timeStampFormat)
                   + stamp.captured(3);
    }
    static const QRegularExpression counted(QStringLiteral("^(.*?)(?:_(\\d{1,4}))?(\\.[^./]*)?$"));
    const QRegularExpressionMatch parts = counted.match(path);
    return QStringLiteral("%1_%2%3").arg(parts.captured(1), QString::number(parts.captured(2).toInt() + 1),
                                         parts.captured(3));
}

} // namespace capturenaming
