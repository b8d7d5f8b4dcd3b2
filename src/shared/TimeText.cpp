#include "shared/TimeText.h"

#include "shared/Names.h"

namespace morvane {

QString timeStamp(const QDateTime &moment)
{
    return moment.toString(timeStampFormat);
}

QString millisecondsToHHMMSS(int milliseconds)
{
    return QTime(0, 0, 0, 0).addMSecs(milliseconds).toString(QStringLiteral("hh.mm.ss"));
}

QString secondsToHHMMSS(int seconds)
{
    // Wrapped first, so that no number of seconds is too many milliseconds for an int.
    constexpr int secondsPerDay = 24 * 60 * 60;
    return millisecondsToHHMMSS(seconds % secondsPerDay * 1000);
}

} // namespace morvane
