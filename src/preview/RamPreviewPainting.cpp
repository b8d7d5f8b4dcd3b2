// The painting of RamPreview, what is read from the picture at a paint, and the mouse.

#include "preview/MaskOverlay.h"
#include "preview/RamPreview.h"
#include "preview/StoredText.h"
#include "shared/HistoCalc.h"

#include <cmath>
#include <QQuickWindow>
#include <QSGImageNode>

namespace {

constexpr int leftButtonNumber = 1;
constexpr int rightButtonNumber = 2;

QVariantList toVariants(const QList<qreal> &numbers)
{
    return QVariantList(numbers.cbegin(), numbers.cend());
}

QPointF toPoint(const QVariant &node)
{
    if (node.metaType() == QMetaType::fromType<QVariantMap>()) {
        const QVariantMap map = node.toMap();
        return {map.value(QStringLiteral("x")).toReal(), map.value(QStringLiteral("y")).toReal()};
    }
    return node.toPointF();
}

} // namespace

bool RamPreview::shows() const
{
    return !m_image.isNull() && m_renderAllowed && !m_imageName.isEmpty();
}

void RamPreview::updateRendered()
{
    polish();
    update();
}

void RamPreview::repaint()
{
    if (m_renderAllowed)
        updateRendered();
}

/// The part of a paint that reads the picture and tells of it: here, because painting may run on another
/// thread.
void RamPreview::updatePolish()
{
    // While a picture loads, what is on screen stays as it is.
    if (!shows() || m_caching)
        return;
    const bool isNew = m_textPending;
    if (isNew)
        readStoredText();
    if (histogramOn() && (forceUpdateHisogram() || isNew)) {
        const HistoCalc::Channels counts = HistoCalc::calculate(m_image);
        setHistogram(
            {toVariants(counts.y), toVariants(counts.r), toVariants(counts.g), toVariants(counts.b)});
    }
    pick();
}

void RamPreview::readStoredText()
{
    StoredText text;
    if (!StoredText::read(m_image.text(StoredText::key), text))
        return;
    m_textPending = false;
    if (text.scale != -1)
        setImageScale(text.scale);
    if (text.coefficient > 0 && text.coefficient <= 1)
        setCurrentCroppedCoefX(text.coefficient);
    setSourceSize(int(text.sourceWidth), int(text.sourceHeight));
    setSize(m_image.size());
    emit newPicRendered();
}

QSGNode *RamPreview::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    auto *node = static_cast<QSGImageNode *>(oldNode);
    if (!shows()) {
        delete node;
        return nullptr;
    }
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        m_textureStale = true;
    }
    if (m_textureStale) {
        const auto options =
            m_image.hasAlphaChannel() ? QQuickWindow::TextureHasAlphaChannel : QQuickWindow::TextureIsOpaque;
        node->setTexture(window()->createTextureFromImage(m_image, options));
        m_textureStale = false;
    }
    node->setFiltering(smooth() ? QSGTexture::Linear : QSGTexture::Nearest);
    const auto transform = mirrored() ? QSGImageNode::MirrorHorizontally : QSGImageNode::NoTransform;
    if (node->textureCoordinatesTransform() != transform) {
        node->setTextureCoordinatesTransform(transform);
        // The node tells of a change of its material only, and the old coordinates would stay.
        node->markDirty(QSGNode::DirtyGeometry);
    }
    node->setRect(boundingRect());
    return node;
}

/// Tells the colour of the pixel that is seen under the mouse.
void RamPreview::pick()
{
    if (!m_pick)
        return;
    const QPointF point = *m_pick;
    m_pick.reset();
    if (width() <= 0 || height() <= 0)
        return;
    QPoint pixel(int(std::floor(point.x() * m_image.width() / width())),
                 int(std::floor(point.y() * m_image.height() / height())));
    if (!m_image.rect().contains(pixel))
        return;
    if (mirrored())
        pixel.setX(m_image.width() - 1 - pixel.x());
    emit setEyedropper(mapToScene(point).toPoint(), m_image.pixelColor(pixel));
}

void RamPreview::hoverMoveEvent(QHoverEvent *event)
{
    if (!eyedropperOn() && !maskingOn()) {
        event->ignore();
        return;
    }
    m_pick = event->position();
    repaint();
}

void RamPreview::hoverLeaveEvent(QHoverEvent *)
{
    m_pick.reset();
    emit setEyedropper(QPoint(-1, -1), Qt::black);
}

void RamPreview::mousePressEvent(QMouseEvent *event)
{
    press(event->button(), event->position());
}

void RamPreview::evokeMousePressEvent(int button, int x, int y)
{
    if (button == rightButtonNumber)
        press(Qt::RightButton, QPointF(x, y));
    else if (button == leftButtonNumber)
        press(Qt::LeftButton, QPointF(x, y));
}

void RamPreview::press(Qt::MouseButton button, QPointF point)
{
    if (eyedropperOn() || maskingOn()) {
        m_pick = point;
        repaint();
    }
    if (button == Qt::RightButton)
        emit rightClick(point.toPoint());
    else if (button == Qt::LeftButton)
        emit mousePressed(point.toPoint());
}

void RamPreview::addDrawablePoint(QPoint point)
{
    const QSizeF size(qMax(1.0, width()), qMax(1.0, height()));
    m_maskPoints.append(
        {point.x() * sourceImageWidth() / size.width(), point.y() * sourceImageHeight() / size.height()});
    updateOverlay();
    repaint();
}

void RamPreview::connectOverlay()
{
    connect(this, &RamPreview::maskingOnChanged, this, &RamPreview::updateOverlay);
    connect(this, &RamPreview::maskColorChanged, this, &RamPreview::updateOverlay);
    connect(this, &RamPreview::colorChanged, this, &RamPreview::updateOverlay);
    connect(this, &RamPreview::drawablePointSizeChanged, this, &RamPreview::updateOverlay);
    connect(this, &RamPreview::pathNodesChanged, this, &RamPreview::updateOverlay);
    connect(this, &RamPreview::sourceImageInfoChanged, this, &RamPreview::updateOverlay);
    connect(this, &RamPreview::widthChanged, this, &RamPreview::updateOverlay);
    connect(this, &RamPreview::heightChanged, this, &RamPreview::updateOverlay);
}

void RamPreview::updateOverlay()
{
    const bool wanted = maskingOn() && (!m_maskPoints.isEmpty() || !pathNodes().isEmpty());
    if (!m_overlay && !wanted)
        return;
    if (!m_overlay)
        m_overlay = new MaskOverlay(this);
    m_overlay->setVisible(wanted);
    m_overlay->setSize(size());
    MaskOverlay::Drawing drawing;
    for (const QVariant &node : pathNodes())
        drawing.nodes.append(toPoint(node));
    for (const QPointF &point : std::as_const(m_maskPoints))
        drawing.points.append(
            {point.x() * width() / sourceImageWidth(), point.y() * height() / sourceImageHeight()});
    drawing.pen = color();
    drawing.fill = maskColor();
    drawing.penWidth = drawablePointSize();
    m_overlay->setDrawing(drawing);
}
