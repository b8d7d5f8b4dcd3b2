#pragma once

#include "paths/MPathPoint.h"

#include <QList>
#include <QString>
#include <QStringView>

/// The text form of a path, as project files keep it: for each node "type,V1,V2,V3,V4,V5,V6;", the type a
/// decimal integer and the coordinates with six significant digits in the C locale. No header; an empty path
/// is the empty text.
namespace morvane {

/// How reading a path went. Texts come from files that anyone may have written, so nothing in them is
/// trusted: a node that cannot be read is left out and counted, a text that cannot be a path is refused.
struct PathLoadResult
{
    enum Status {
        Loaded,   ///< Every node was read.
        Repaired, ///< Some nodes were unreadable and are left out.
        Refused,  ///< Nothing was taken; the path is as it was.
    };

    Status status = Loaded;
    int nodeCount = 0;
    int skippedCount = 0;
    /// What to tell the user; empty when everything was read.
    QString message;

    bool ok() const
    {
        return status != Refused;
    }

    static PathLoadResult refused(const QString &message);
    static PathLoadResult taken(qsizetype nodeCount, int skippedCount);
};

struct DecodedPath
{
    QList<MPathPoint> nodes; ///< Without GUIDs; empty when the text is refused.
    PathLoadResult result;
};

/// The longest text that is looked at, in characters.
inline constexpr qsizetype maxPathTextLength = 12'000'000;

QString encodePath(const QList<MPathPoint> &nodes);

/// Empty parts are skipped, so a trailing ";" changes nothing. Logs "Wrong data passed to parsePathNode",
/// "Fail to read int" or "Fail to read double" for a node it leaves out, the first twenty times.
DecodedPath decodePath(QStringView text);

/// The same text wrapped in base64.
QString encodePathBase64(const QList<MPathPoint> &nodes);
DecodedPath decodePathBase64(QStringView base64);

} // namespace morvane
