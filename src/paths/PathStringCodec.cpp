#include "paths/PathStringCodec.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDebug>

#include <array>
#include <optional>

namespace morvane {

namespace {

constexpr int fieldsPerNode = 7;
/// A damaged file may have a bad node in every place; the log is not the place to list them all.
constexpr int maxLoggedComplaints = 20;

/// Reads nodes one by one and keeps count of the bad ones.
class NodeReader
{
public:
    std::optional<MPathPoint> read(QStringView part)
    {
        const QList<QStringView> fields = part.split(u',');
        if (fields.size() != fieldsPerNode)
            return refuse("Wrong data passed to parsePathNode");

        bool isNumber = false;
        const int type = fields.first().toInt(&isNumber);
        if (!isNumber)
            return refuse("Fail to read int");
        if (!MPathPoint::isType(type))
            return refuse("Wrong data passed to parsePathNode");

        std::array<double, fieldsPerNode - 1> values{};
        for (std::size_t at = 0; at < values.size(); ++at) {
            values[at] = fields[qsizetype(at) + 1].toDouble(&isNumber);
            if (!isNumber || !isPathCoordinate(values[at]))
                return refuse("Fail to read double");
        }

        MPathPoint node;
        node.type = type;
        node.V1 = values[0];
        node.V2 = values[1];
        node.V3 = values[2];
        node.V4 = values[3];
        node.V5 = values[4];
        node.V6 = values[5];
        node.refreshEnd();
        return node;
    }

    int skippedCount() const
    {
        return m_skippedCount;
    }

private:
    std::nullopt_t refuse(const char *reason)
    {
        if (++m_skippedCount <= maxLoggedComplaints)
            qWarning("%s", reason);
        return std::nullopt;
    }

    int m_skippedCount = 0;
};

QString translated(const char *text)
{
    return QCoreApplication::translate("Curves", text);
}

} // namespace

PathLoadResult PathLoadResult::refused(const QString &message)
{
    PathLoadResult result;
    result.status = Refused;
    result.message = message;
    return result;
}

PathLoadResult PathLoadResult::taken(qsizetype nodeCount, int skippedCount)
{
    if (nodeCount == 0 && skippedCount > 0)
        return refused(
            translated(QT_TRANSLATE_NOOP("Curves", "The vector path is damaged and was not read")));
    PathLoadResult result;
    result.nodeCount = int(nodeCount);
    result.skippedCount = skippedCount;
    if (skippedCount > 0) {
        result.status = Repaired;
        result.message =
            translated(QT_TRANSLATE_NOOP("Curves", "The vector path is damaged: nodes left out: %1"))
                .arg(skippedCount);
    }
    return result;
}

QString encodePath(const QList<MPathPoint> &nodes)
{
    QString text;
    text.reserve(nodes.size() * 32);
    for (const MPathPoint &node : nodes) {
        text += QString::number(node.type);
        for (const double value : {node.V1, node.V2, node.V3, node.V4, node.V5, node.V6}) {
            text += u',';
            text += QString::number(value, 'g', 6);
        }
        text += u';';
    }
    return text;
}

DecodedPath decodePath(QStringView text)
{
    if (text.size() > maxPathTextLength)
        return {{},
                PathLoadResult::refused(
                    translated(QT_TRANSLATE_NOOP("Curves", "The vector path is too long and was not read")))};

    DecodedPath decoded;
    NodeReader reader;
    for (const QStringView part : text.tokenize(u';', Qt::SkipEmptyParts)) {
        const std::optional<MPathPoint> node = reader.read(part);
        if (!node)
            continue;
        if (decoded.nodes.size() == maxPathNodes)
            return {{},
                    PathLoadResult::refused(translated(
                        QT_TRANSLATE_NOOP("Curves", "The vector path has too many nodes and was not read")))};
        decoded.nodes.append(*node);
    }
    if (reader.skippedCount() > maxLoggedComplaints)
        qWarning("Path nodes left out: %d", reader.skippedCount());
    decoded.result = PathLoadResult::taken(decoded.nodes.size(), reader.skippedCount());
    return decoded;
}

QString encodePathBase64(const QList<MPathPoint> &nodes)
{
    return QString::fromLatin1(encodePath(nodes).toLatin1().toBase64());
}

DecodedPath decodePathBase64(QStringView base64)
{
    // Four characters of base64 hold three of text; checked before anything is copied.
    if (base64.size() / 4 * 3 > maxPathTextLength)
        return {{},
                PathLoadResult::refused(
                    translated(QT_TRANSLATE_NOOP("Curves", "The vector path is too long and was not read")))};
    const QString text = QString::fromLatin1(QByteArray::fromBase64(base64.toLatin1()));
    if (text.isEmpty() && !base64.isEmpty())
        return {{},
                PathLoadResult::refused(
                    translated(QT_TRANSLATE_NOOP("Curves", "The vector path is damaged and was not read")))};
    return decodePath(text);
}

} // namespace morvane
