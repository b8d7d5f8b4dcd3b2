#include "app/facade/WindowFacet.h"

#include "app/AppControllers.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QResizeEvent>
#include <QThread>

namespace {

constexpr QSizeF thumbnailSize{90, 60};

bool isUserInput(QEvent::Type type)
{
    return type == QEvent::KeyPress || type == QEvent::MouseMove || type == QEvent::MouseButtonPress
           || type == QEvent::Wheel;
}

} // namespace

WindowFacet::WindowFacet(std::unique_ptr<AppControllers> controllers) : CaptureFacet(std::move(controllers))
{
    connect(this, &QWindow::windowStateChanged, this, &WindowFacet::isFullscreenChanged);
}

QSize WindowFacet::windowSize() const
{
    return size();
}

bool WindowFacet::isFullscreen() const
{
    return windowStates().testFlag(Qt::WindowFullScreen);
}

int WindowFacet::currentDpi() const
{
    return m_currentDpi;
}

double WindowFacet::dpiScale() const
{
    return m_dpiScale;
}

int WindowFacet::idealThreads() const
{
    return QThread::idealThreadCount();
}

int WindowFacet::timelineH() const
{
    return m_timelineH;
}

void WindowFacet::setTimelineH(int height)
{
    if (m_timelineH == height)
        return;
    m_timelineH = height;
    emit timelineHChanged();
}

QSizeF WindowFacet::scaledThumbSize() const
{
    return thumbnailSize * m_dpiScale;
}

void WindowFacet::normal()
{
    setWindowStates(windowStates() & ~Qt::WindowFullScreen);
}

void WindowFacet::fullscreen()
{
    setWindowStates(windowStates() | Qt::WindowFullScreen);
}

int WindowFacet::screenCount() const
{
    return static_cast<int>(QGuiApplication::screens().size());
}

void WindowFacet::refresh()
{
    update();
}

void WindowFacet::redrawing()
{
    emit redrawWindow();
}

void WindowFacet::repaintMe(const QRect &)
{
    update();
}

bool WindowFacet::event(QEvent *event)
{
    if (isUserInput(event->type()))
        emit userIsActive();
    return CaptureFacet::event(event);
}

void WindowFacet::resizeEvent(QResizeEvent *event)
{
    CaptureFacet::resizeEvent(event);
    emit windowSizeChanged();
}

void WindowFacet::setSizes(int snappedDensity, double dpiScale)
{
    m_currentDpi = snappedDensity;
    emit currentDpiChanged();
    m_dpiScale = dpiScale;
    emit dpiScaleChanged();
    emit scaledThumbSizeChanged();
}
