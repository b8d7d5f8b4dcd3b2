#pragma once

#include "paths/MPathPoint.h"
#include "paths/PathStringCodec.h"

#include <QVariantList>

/// The form of a path for files of its own: a list with one map for each node, keyed by the names of the
/// model's roles ("Id", "V1" ... "V6", "IX", "IY", "Store", "guid", "ingroup").
namespace morvane {

QVariantMap recordOf(const MPathPoint &node);
QVariantList recordsOf(const QList<MPathPoint> &nodes);

/// Reads one record. False, with a log line naming the field, if a value has the wrong type or is out of
/// range: "MorvaPointRoles::Ingroup type is not ok", "Wrong type MorvaPointRoles::IX" and the same with the
/// other names. "Id" and the end point must be there; other fields that are missing are zero. Where the end
/// point and the V fields differ, the V fields win. The GUID is not read: a model gives its own.
bool readRecord(const QVariant &record, MPathPoint *node);

/// Reads a list. Records that cannot be read are left out and counted.
DecodedPath nodesOf(const QVariantList &records);

} // namespace morvane
