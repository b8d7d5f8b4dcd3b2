#pragma once

#include "capture/LivePicture.h"

#include <QColor>
#include <QPoint>
#include <QQuickItem>

class QSGImageNode;
class QSGRectangleNode;

/// Shows the newest live picture over its whole area, or black while there is none. What all devices' live
/// view items have in common; each device's own item says which events mean what. Main thread; drawing
/// follows the scene graph's rules and touches only what was handed over.
///
/// Blend and grayscale are effects of the scene, which reads here what is wanted.
class LiveViewItem : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(int blend READ blend WRITE setBlend NOTIFY blendChanged)
    Q_PROPERTY(bool grayscale READ grayscale NOTIFY grayscaleChanged)
    /// Whether blend or grayscale is in force.
    Q_PROPERTY(bool effectEnabled READ effectEnabled NOTIFY effectEnabledChanged)
    Q_PROPERTY(bool showing READ showing NOTIFY showingChanged)

public:
    explicit LiveViewItem(QQuickItem *parent = nullptr);

    /// Where the pictures come from; the process-wide one unless told otherwise. It outlives the item.
    void setLivePicture(LivePicture &picture)
    {
        m_source = &picture;
    }

    /// A value of Zum::BlendType; anything above 0 enables the effect.
    int blend() const
    {
        return m_blend;
    }
    bool grayscale() const
    {
        return m_grayscale;
    }
    bool effectEnabled() const
    {
        return m_grayscale || m_blend > 0;
    }
    bool showing() const
    {
        return m_showing;
    }
    bool accepting() const
    {
        return m_accepting;
    }
    bool rotated() const
    {
        return m_rotated;
    }
    /// The picture on the screen, upright as the camera gave it.
    QImage picture() const
    {
        return m_picture;
    }
    /// Size of the picture as the camera gave it, before it was cut down.
    QSize nativeSize() const
    {
        return m_nativeSize;
    }

public slots:
    void setBlend(int blend);
    void setEyedropperOn(bool one);
    void updateScreen();

signals:
    void blendChanged();
    void grayscaleChanged();
    void effectEnabledChanged();
    void showingChanged();
    void refreshme();
    /// The colour under the mouse, at a position of the scene.
    void setEyedropper(QPoint mouse, QColor colour);
    void rightClick(QPoint mouse);

protected:
    void takeNewPicture();
    void setShowing(bool showing);
    void setAccepting(bool accepting);
    void setRotated(bool rotated);
    void setSmoothPicture(bool smooth);
    void setGrayscale(bool grayscale);
    /// A picture of another size than the one before has come.
    virtual void pictureSizeChanged(const QSize &size) = 0;

    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    /// A left press, at a position of the item.
    virtual void leftPressed(const QPoint &mouse) = 0;

private:
    void lookAt(const QPointF &position);
    QSGNode *pictureNode(QSGImageNode *old);
    QSGNode *blackNode(QSGRectangleNode *old) const;

    LivePicture *m_source = &LivePicture::processWide();
    QImage m_picture;
    QSize m_nativeSize;
    QPointF m_eyedropperPosition;
    int m_blend = 0;
    bool m_grayscale = false;
    bool m_accepting = true;
    bool m_showing = false;
    bool m_smooth = false;
    bool m_rotated = false;
    bool m_eyedropperOn = false;
    bool m_eyedropperWaits = false;
    /// The texture on the screen is not of the picture.
    bool m_pictureIsNew = false;
    /// Which of the two nodes the scene graph has.
    bool m_nodeShowsPicture = false;
};
