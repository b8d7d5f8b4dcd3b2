#include "capture/webcam/WebCamCaptureWnd.h"

#include "capture/webcam/WebCamEvent.h"

WebCamCaptureWnd::WebCamCaptureWnd(QQuickItem *parent) : LiveViewItem(parent)
{
}

void WebCamCaptureWnd::pictureSizeChanged(const QSize &size)
{
    setSize(size);
    if (parentItem())
        parentItem()->setSize(size);
}

void WebCamCaptureWnd::leftPressed(const QPoint &mouse)
{
    emit mousePressed(mouse);
}

void WebCamCaptureWnd::customEvent(QEvent *event)
{
    switch (int(event->type())) {
        case WebCamEvent::NewPicture:
            takeNewPicture();
            break;
        case WebCamEvent::ShowingOn:
            setShowing(true);
            break;
        case WebCamEvent::ConnectionLost:
        case WebCamEvent::LoopEnded:
            setShowing(false);
            break;
        case WebCamEvent::AcceptingOff:
        case WebCamEvent::AcceptingOn:
            setAccepting(int(event->type()) == WebCamEvent::AcceptingOn);
            break;
        case WebCamEvent::RotatedOn:
        case WebCamEvent::RotatedOff:
            setRotated(int(event->type()) == WebCamEvent::RotatedOn);
            break;
        case WebCamEvent::SmoothOn:
        case WebCamEvent::SmoothOff:
            setSmoothPicture(int(event->type()) == WebCamEvent::SmoothOn);
            break;
        case WebCamEvent::GrayscaleOn:
        case WebCamEvent::GrayscaleOff:
            setGrayscale(int(event->type()) == WebCamEvent::GrayscaleOn);
            break;
        case WebCamEvent::Blend:
            setBlend(static_cast<WebCamEvent *>(event)->value().toInt());
            break;
        default:
            break;
    }
}
