#include "paths/PathRecords.h"

#include <QCoreApplication>
#include <QDebug>

#include <optional>
#include <utility>

namespace morvane {

namespace {

constexpr std::pair<const char *, double MPathPoint::*> coordinateFields[] = {
    {"V1", &MPathPoint::V1}, {"V2", &MPathPoint::V2}, {"V3", &MPathPoint::V3},
    {"V4", &MPathPoint::V4}, {"V5", &MPathPoint::V5}, {"V6", &MPathPoint::V6},
};

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
        case QMetaType::Int:
        case QMetaType::LongLong:
        case QMetaType::Float:
        case QMetaType::Double:
            return true;
        default:
            return false;
    }
}

std::optional<double> readCoordinate(const QVariant &value)
{
    if (!isNumber(value) || !isPathCoordinate(value.toDouble()))
        return std::nullopt;
    return value.toDouble();
}

bool wrongType(const char *name)
{
    qWarning("Wrong type MorvaPointRoles::%s", name);
    return false;
}

} // namespace

QVariantMap recordOf(const MPathPoint &node)
{
    QVariantMap record{
        {QStringLiteral("guid"), node.GUID}, {QStringLiteral("ingroup"), node.Ingroup},
        {QStringLiteral("Id"), node.type},   {QStringLiteral("IX"), node.IX},
        {QStringLiteral("IY"), node.IY},     {QStringLiteral("Store"), node.Store},
    };
    for (const auto &[name, field] : coordinateFields)
        record.insert(QLatin1String(name), node.*field);
    return record;
}

QVariantList recordsOf(const QList<MPathPoint> &nodes)
{
    QVariantList records;
    records.reserve(nodes.size());
    for (const MPathPoint &node : nodes)
        records.append(recordOf(node));
    return records;
}

bool readRecord(const QVariant &record, MPathPoint *node)
{
    const QVariantMap fields = record.toMap();
    MPathPoint read;

    const QVariant ingroup = fields.value(QStringLiteral("ingroup"), false);
    if (ingroup.typeId() != QMetaType::Bool) {
        qWarning("MorvaPointRoles::Ingroup type is not ok");
        return false;
    }
    read.Ingroup = ingroup.toBool();

    for (const char *name : {"IX", "IY"})
        if (!readCoordinate(fields.value(QLatin1String(name))))
            return wrongType(name);

    const QVariant type = fields.value(QStringLiteral("Id"));
    if (type.typeId() != QMetaType::Int || !MPathPoint::isType(type.toInt()))
        return wrongType("Id");
    read.type = type.toInt();

    for (const auto &[name, field] : coordinateFields) {
        const std::optional<double> value = readCoordinate(fields.value(QLatin1String(name), 0.0));
        if (!value)
            return wrongType(name);
        read.*field = *value;
    }

    const std::optional<double> store = readCoordinate(fields.value(QStringLiteral("Store"), 0));
    if (!store)
        return wrongType("Store");
    read.Store = int(*store);

    read.refreshEnd();
    *node = read;
    return true;
}

DecodedPath nodesOf(const QVariantList &records)
{
    if (records.size() > maxPathNodes)
        return {{},
                PathLoadResult::refused(QCoreApplication::translate(
                    "Curves", "The vector path has too many nodes and was not read"))};
    DecodedPath decoded;
    int skippedCount = 0;
    for (const QVariant &record : records) {
        MPathPoint node;
        if (readRecord(record, &node))
            decoded.nodes.append(node);
        else
            ++skippedCount;
    }
    decoded.result = PathLoadResult::taken(decoded.nodes.size(), skippedCount);
    return decoded;
}

} // namespace morvane
