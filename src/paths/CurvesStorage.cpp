#include "paths/Curves.h"
#include "paths/PathRecords.h"

#include <QScopeGuard>

morvane::PathLoadResult Curves::restorePath(const StoredPath &stored)
{
    m_restoring = true;
    const auto done = qScopeGuard([this] { m_restoring = false; });
    setSmoothValue(stored.smooth);
    const morvane::DecodedPath decoded =
        stored.data.isEmpty() ? morvane::decodePath(stored.pathData) : morvane::decodePathBase64(stored.data);
    if (decoded.result.ok()) {
        m_history.clear();
        replacePath(fittedToCanvas(decoded.nodes, {stored.viewportX, stored.viewportY}));
        setLoaded(true);
    }
    return decoded.result;
}

StoredPath Curves::storedPath() const
{
    StoredPath stored;
    stored.data = morvane::encodePathBase64(nodes());
    stored.viewportX = pathExtent().width();
    stored.viewportY = pathExtent().height();
    stored.smooth = smoothValue();
    return stored;
}

morvane::PathLoadResult Curves::restoreRecords(const QVariantList &records)
{
    const morvane::DecodedPath decoded = morvane::nodesOf(records);
    if (decoded.result.ok()) {
        m_history.clear();
        replacePath(decoded.nodes);
    }
    return decoded.result;
}

QVariantList Curves::pathRecords() const
{
    return morvane::recordsOf(nodes());
}

void Curves::resetPath()
{
    m_restoring = true;
    const auto done = qScopeGuard([this] { m_restoring = false; });
    m_history.clear();
    replacePath({});
    forgetAdoptedCanvas();
    setSmoothValue(StoredPath().smooth);
    setLocked(false);
    setAddrectmode(false);
    setAddNewNodeMode(0);
    setHandDrawnPointType(0);
    setLoaded(false);
}
