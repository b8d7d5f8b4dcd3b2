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
    return millisecondsToHHMMSS(seconds * 1000);
}

} // namespace morvane
