#include "paths/CurvesDrawing.h"

#include <cmath>

namespace {

constexpr qreal minExtent = 1.0e-3;

} // namespace

CurvesDrawing::CurvesDrawing(QObject *parent) : CurvesState(parent)
{
    connect(this, &CurvesState::pointSizeChanged, this, &CurvesDrawing::pointSizeHalfChanged);
}

qreal CurvesDrawing::pointSizeHalf() const
{
    return pointSize() / 2.0;
}

QPainterPath CurvesDrawing::path() const
{
    return m_paths.path;
}

QPainterPath CurvesDrawing::handlers() const
{
    return m_paths.handlers;
}

QPolygonF CurvesDrawing::dots() const
{
    return m_paths.dots;
}

qreal CurvesDrawing::canvasWidth() const
{
    return m_width.now;
}

qreal CurvesDrawing::canvasHeight() const
{
    return m_height.now;
}

void CurvesDrawing::setCanvasWidth(qreal width)
{
    const qreal before = m_width.now;
    const qreal factor = resize(m_width, width);
    if (factor != 1.0)
        stretch(factor, 1.0);
    if (m_width.now != before)
        emit canvasWidthChanged();
}

void CurvesDrawing::setCanvasHeight(qreal height)
{
    const qreal before = m_height.now;
    const qreal factor = resize(m_height, height);
    if (factor != 1.0)
        stretch(1.0, factor);
    if (m_height.now != before)
        emit canvasHeightChanged();
}

bool CurvesDrawing::isExtent(qreal extent)
{
    return std::isfinite(extent) && extent >= minExtent && extent <= morvane::maxPathCoordinate;
}

qreal CurvesDrawing::resize(Extent &extent, qreal size)
{
    if (!isExtent(size)) {
        extent.now = 0.0;
        return 1.0;
    }
    const qreal factor = extent.ofPath > 0.0 ? size / extent.ofPath : 1.0;
    extent = {size, size, true};
    return factor;
}

qreal CurvesDrawing::adopt(Extent &extent, qreal size)
{
    if (extent.fromScene)
        return extent.ofPath / size;
    extent = {size, size, false};
    return 1.0;
}

QSizeF CurvesDrawing::pathExtent() const
{
    return {m_width.ofPath, m_height.ofPath};
}

QList<MPathPoint> CurvesDrawing::fittedToCanvas(QList<MPathPoint> nodes, QSizeF from)
{
    if (!isExtent(from.width()) || !isExtent(from.height()))
        return nodes;
    const QSizeF before(m_width.now, m_height.now);
    const qreal scaleX = adopt(m_width, from.width());
    const qreal scaleY = adopt(m_height, from.height());
    if (scaleX != 1.0 || scaleY != 1.0)
        for (MPathPoint &node : nodes)
            node.scale(scaleX, scaleY);
    if (m_width.now != before.width())
        emit canvasWidthChanged();
    if (m_height.now != before.height())
        emit canvasHeightChanged();
    return nodes;
}

void CurvesDrawing::forgetAdoptedCanvas()
{
    const QSizeF before(m_width.now, m_height.now);
    if (!m_width.fromScene)
        m_width = {};
    if (!m_height.fromScene)
        m_height = {};
    if (m_width.now != before.width())
        emit canvasWidthChanged();
    if (m_height.now != before.height())
        emit canvasHeightChanged();
}

void CurvesDrawing::updateRenderPaths()
{
    m_paths = morvane::buildRenderPaths(nodes());
    emit pathChanged();
    emit handlersChanged();
    emit dotsChanged();
    emit markersChanged();
}

qreal CurvesDrawing::dragMarker(qreal x, qreal y) const
{
    if (!std::isfinite(x) || !std::isfinite(y))
        return 0.0;
    return morvane::nearestLength(m_paths.path, {x, y});
}
