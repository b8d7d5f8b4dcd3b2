#pragma once

#include <QDateTime>
#include <QString>

namespace morvane {

/// Twelve digits, year to second: the part of a captured file's name that makes it unique.
QString timeStamp(const QDateTime &moment = QDateTime::currentDateTime());

/// "hh.mm.ss", with dots because the text goes into file names too; wraps past 24 hours.
QString millisecondsToHHMMSS(int milliseconds);
QString secondsToHHMMSS(int seconds);

} // namespace morvane
