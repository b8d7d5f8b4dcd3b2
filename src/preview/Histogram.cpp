#include "preview/Histogram.h"

#include <algorithm>
#include <cmath>
#include <QSGFlatColorMaterial>
#include <QSGGeometryNode>

namespace {

constexpr qreal barShare = 0.00390625;
constexpr int verticesPerBar = 6;

void setBar(QSGGeometry::Point2D *vertices, float left, float top, float right, float bottom)
{
    vertices[0].set(left, bottom);
    vertices[1].set(right, bottom);
    vertices[2].set(left, top);
    vertices[3].set(left, top);
    vertices[4].set(right, bottom);
    vertices[5].set(right, top);
}

QSGGeometryNode *makeNode()
{
    auto *node = new QSGGeometryNode;
    auto *geometry = new QSGGeometry(QSGGeometry::defaultAttributes_Point2D(), 0);
    geometry->setDrawingMode(QSGGeometry::DrawTriangles);
    node->setGeometry(geometry);
    node->setMaterial(new QSGFlatColorMaterial);
    node->setFlags(QSGNode::OwnsGeometry | QSGNode::OwnsMaterial);
    return node;
}

} // namespace

Histogram::Histogram(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setClip(true);
}

void Histogram::setRunning(bool running)
{
    if (running == m_running)
        return;
    m_running = running;
    emit runningChanged();
    update();
}

void Histogram::setBodyColor(const QColor &color)
{
    if (color == m_bodyColor)
        return;
    m_bodyColor = color;
    emit bodyColorChanged();
    update();
}

void Histogram::setHistogramData(const QList<qreal> &data)
{
    if (!m_running || data == m_data)
        return;
    m_data = data;
    emit histogramDataChanged();
    update();
}

void Histogram::setMaxCoeff(qreal coefficient)
{
    if (std::isnan(coefficient))
        return;
    const qreal limited = std::clamp(coefficient, minMaxCoeff, 1.0);
    if (limited == m_maxCoeff)
        return;
    m_maxCoeff = limited;
    emit maxCoeffChanged();
    update();
}

QList<qreal> Histogram::barHeights(qreal itemHeight) const
{
    if (!m_running || m_data.size() < 2)
        return {};
    const qreal reference = m_data.constLast() * m_maxCoeff;
    if (!(reference > 0))
        return {};
    QList<qreal> heights;
    heights.reserve(m_data.size() - 1);
    for (qsizetype i = 0; i + 1 < m_data.size(); ++i)
        heights.append(m_data.at(i) / reference * itemHeight);
    return heights;
}

QSGNode *Histogram::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    const QList<qreal> heights = barHeights(height());
    if (heights.isEmpty()) {
        delete old;
        return nullptr;
    }
    auto *node = old ? static_cast<QSGGeometryNode *>(old) : makeNode();
    QSGGeometry *geometry = node->geometry();
    geometry->allocate(static_cast<int>(heights.size()) * verticesPerBar);
    const auto bottom = static_cast<float>(height());
    const qreal barWidth = width() * barShare;
    for (qsizetype i = 0; i < heights.size(); ++i)
        setBar(geometry->vertexDataAsPoint2D() + i * verticesPerBar, static_cast<float>(double(i) * barWidth),
               static_cast<float>(height() - heights.at(i)), static_cast<float>(double(i + 1) * barWidth),
               bottom);
    static_cast<QSGFlatColorMaterial *>(node->material())->setColor(m_bodyColor);
    node->markDirty(QSGNode::DirtyGeometry | QSGNode::DirtyMaterial);
    return node;
}

void Histogram::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        update();
}
