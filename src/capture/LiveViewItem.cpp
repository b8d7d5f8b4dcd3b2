#include "capture/LiveViewItem.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRectangleNode>

namespace {

// A camera's picture is opaque, and as such it needs no pass over its pixels on the way to the texture. The
// view keeps the picture's memory.
QImage opaqueView(const QImage &picture)
{
    const auto drop = [](void *kept) {
        delete static_cast<QImage *>(kept);
    };
    return QImage(picture.constBits(), picture.width(), picture.height(), picture.bytesPerLine(),
                  QImage::Format_RGB32, drop, new QImage(picture));
}

} // namespace

LiveViewItem::LiveViewItem(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
    setAcceptHoverEvents(true);
    setClip(true);
    setSize(QSizeF(360, 250));
    connect(this, &LiveViewItem::refreshme, this, &LiveViewItem::updateScreen);
}

void LiveViewItem::setBlend(int blend)
{
    if (m_blend == blend)
        return;
    const bool was = effectEnabled();
    m_blend = blend;
    emit blendChanged();
    if (was != effectEnabled())
        emit effectEnabledChanged();
}

void LiveViewItem::setGrayscale(bool grayscale)
{
    if (m_grayscale == grayscale)
        return;
    const bool was = effectEnabled();
    m_grayscale = grayscale;
    emit grayscaleChanged();
    if (was != effectEnabled())
        emit effectEnabledChanged();
}

void LiveViewItem::setEyedropperOn(bool one)
{
    m_eyedropperOn = one;
    m_eyedropperWaits = false;
}

void LiveViewItem::updateScreen()
{
    update();
}

void LiveViewItem::setShowing(bool showing)
{
    if (m_showing == showing)
        return;
    m_showing = showing;
    emit showingChanged();
    update();
}

void LiveViewItem::setAccepting(bool accepting)
{
    m_accepting = accepting;
}

void LiveViewItem::setRotated(bool rotated)
{
    m_rotated = rotated;
    update();
}

void LiveViewItem::setSmoothPicture(bool smooth)
{
    m_smooth = smooth;
    update();
}

void LiveViewItem::takeNewPicture()
{
    if (!m_accepting) {
        m_source->dropAnnouncement();
        return;
    }
    const auto taken = m_source->take();
    if (!taken)
        return;
    if (!taken->picture.isNull()) {
        const bool otherSize = taken->picture.size() != m_picture.size();
        m_picture = taken->picture;
        m_nativeSize = taken->nativeSize;
        m_pictureIsNew = true;
        setShowing(true);
        if (otherSize)
            pictureSizeChanged(m_picture.size());
    }
    emit refreshme();
}

void LiveViewItem::lookAt(const QPointF &position)
{
    if (!m_eyedropperOn)
        return;
    m_eyedropperPosition = position;
    m_eyedropperWaits = true;
    // The colour is read when the very picture that it belongs to goes to the screen.
    polish();
    update();
}

void LiveViewItem::updatePolish()
{
    if (!m_eyedropperOn || !m_eyedropperWaits || m_picture.isNull() || !m_showing)
        return;
    m_eyedropperWaits = false;
    QPoint pixel = m_eyedropperPosition.toPoint();
    if (!m_picture.rect().contains(pixel))
        return;
    if (m_rotated)
        pixel = {m_picture.width() - 1 - pixel.x(), m_picture.height() - 1 - pixel.y()};
    emit setEyedropper(mapToScene(m_eyedropperPosition).toPoint(), m_picture.pixelColor(pixel));
}

// One node or the other, and never one within a node that stays: the software renderer would not mind the
// item's opacity for a node that comes into such a one.
QSGNode *LiveViewItem::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    const bool showsPicture = m_showing && !m_picture.isNull();
    if (old && showsPicture != m_nodeShowsPicture) {
        delete old;
        old = nullptr;
    }
    m_nodeShowsPicture = showsPicture;
    return showsPicture ? pictureNode(static_cast<QSGImageNode *>(old))
                        : blackNode(static_cast<QSGRectangleNode *>(old));
}

QSGNode *LiveViewItem::blackNode(QSGRectangleNode *old) const
{
    QSGRectangleNode *node = old ? old : window()->createRectangleNode();
    node->setColor(Qt::black);
    node->setRect(boundingRect());
    return node;
}

QSGNode *LiveViewItem::pictureNode(QSGImageNode *old)
{
    QSGImageNode *node = old ? old : window()->createImageNode();
    if (!old || m_pictureIsNew) {
        QSGTexture *texture =
            window()->createTextureFromImage(opaqueView(m_picture), QQuickWindow::TextureIsOpaque);
        node->setOwnsTexture(true);
        node->setTexture(texture);
        node->setSourceRect(QRectF(QPointF(), texture->textureSize()));
        m_pictureIsNew = false;
    }
    node->setRect(boundingRect());
    node->setFiltering(m_smooth ? QSGTexture::Linear : QSGTexture::Nearest);
    const QSGImageNode::TextureCoordinatesTransformMode turn =
        m_rotated ? QSGImageNode::MirrorHorizontally | QSGImageNode::MirrorVertically
                  : QSGImageNode::TextureCoordinatesTransformMode(QSGImageNode::NoTransform);
    if (node->textureCoordinatesTransform() != turn) {
        node->setTextureCoordinatesTransform(turn);
        // The node moves its corners and does not tell the renderer.
        node->markDirty(QSGNode::DirtyGeometry);
    }
    return node;
}

void LiveViewItem::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton)
        emit rightClick(event->position().toPoint());
    else
        leftPressed(event->position().toPoint());
}

void LiveViewItem::mouseMoveEvent(QMouseEvent *event)
{
    lookAt(event->position());
}

// A mouse that comes in and stops moves no further.
void LiveViewItem::hoverEnterEvent(QHoverEvent *event)
{
    lookAt(event->position());
}

void LiveViewItem::hoverMoveEvent(QHoverEvent *event)
{
    lookAt(event->position());
}
