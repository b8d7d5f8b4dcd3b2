#include "capture/LiveViewItem.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRectangleNode>

namespace {

/// Holds the node for the picture or the one for black, and knows which.
class LiveViewNode : public QSGNode
{
public:
    QSGImageNode *picture = nullptr;
    QSGRectangleNode *black = nullptr;

    void showBlack(QQuickWindow *window, const QRectF &area)
    {
        drop(picture);
        if (!black) {
            black = window->createRectangleNode();
            black->setColor(Qt::black);
            appendChildNode(black);
        }
        black->setRect(area);
    }

    /// A texture of null leaves the one that is there.
    void showPicture(QQuickWindow *window, QSGTexture *texture)
    {
        drop(black);
        const bool isNew = !picture;
        if (isNew) {
            picture = window->createImageNode();
            picture->setOwnsTexture(true);
        }
        if (texture) {
            picture->setTexture(texture);
            picture->setSourceRect(QRectF(QPointF(), texture->textureSize()));
        }
        // Not before it has its texture, for the renderer looks at it at once.
        if (isNew)
            appendChildNode(picture);
    }

private:
    template <typename Node>
    void drop(Node *&node)
    {
        if (!node)
            return;
        removeChildNode(node);
        delete node;
        node = nullptr;
    }
};

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

QSGNode *LiveViewItem::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    auto *node = old ? static_cast<LiveViewNode *>(old) : new LiveViewNode;
    if (m_picture.isNull() || !m_showing) {
        node->showBlack(window(), boundingRect());
        return node;
    }
    QSGTexture *texture = nullptr;
    if (!node->picture || m_pictureIsNew)
        texture = window()->createTextureFromImage(opaqueView(m_picture), QQuickWindow::TextureIsOpaque);
    m_pictureIsNew = false;
    node->showPicture(window(), texture);
    node->picture->setRect(boundingRect());
    node->picture->setFiltering(m_smooth ? QSGTexture::Linear : QSGTexture::Nearest);
    const QSGImageNode::TextureCoordinatesTransformMode turned =
        QSGImageNode::MirrorHorizontally | QSGImageNode::MirrorVertically;
    node->picture->setTextureCoordinatesTransform(m_rotated ? turned : QSGImageNode::NoTransform);
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

void LiveViewItem::hoverMoveEvent(QHoverEvent *event)
{
    lookAt(event->position());
}
