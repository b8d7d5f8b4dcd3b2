#pragma once

#include "capture/LiveViewItem.h"

/// A webcam's live view. Takes the size of its pictures, and gives it to its parent.
class WebCamCaptureWnd : public LiveViewItem
{
    Q_OBJECT

public:
    explicit WebCamCaptureWnd(QQuickItem *parent = nullptr);

signals:
    void mousePressed(QPoint mouse);

protected:
    void customEvent(QEvent *event) override;
    void pictureSizeChanged(const QSize &size) override;
    void leftPressed(const QPoint &mouse) override;
};
