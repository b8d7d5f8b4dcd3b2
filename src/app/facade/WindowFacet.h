#pragma once

#include "app/facade/CaptureFacet.h"

#include <QRect>
#include <QSizeF>

/// The window on its screen: sizes, density, full screen and redrawing.
class WindowFacet : public CaptureFacet
{
    Q_OBJECT
    Q_PROPERTY(QSize windowSize READ windowSize NOTIFY windowSizeChanged)
    Q_PROPERTY(bool isFullscreen READ isFullscreen NOTIFY isFullscreenChanged)
    Q_PROPERTY(int currentDpi READ currentDpi NOTIFY currentDpiChanged)
    Q_PROPERTY(double dpiScale READ dpiScale NOTIFY dpiScaleChanged)
    Q_PROPERTY(int idealThreads READ idealThreads CONSTANT)
    Q_PROPERTY(int timelineH READ timelineH WRITE setTimelineH NOTIFY timelineHChanged)
    Q_PROPERTY(QSizeF scaledThumbSize READ scaledThumbSize NOTIFY scaledThumbSizeChanged)

public:
    explicit WindowFacet(std::unique_ptr<AppControllers> controllers);

    QSize windowSize() const;
    bool isFullscreen() const;
    int currentDpi() const;
    double dpiScale() const;
    int idealThreads() const;
    /// Height of the timeline in pixels.
    int timelineH() const;
    void setTimelineH(int height);
    /// Size of a thumbnail as shown, in pixels.
    QSizeF scaledThumbSize() const;

public slots:
    void normal();
    void fullscreen();
    int screenCount() const;
    void refresh();
    /// The scene's size has changed: whoever listens to redrawWindow() draws again.
    void redrawing();
    void repaintMe(const QRect &rect);

signals:
    void windowSizeChanged();
    void isFullscreenChanged();
    void currentDpiChanged();
    void dpiScaleChanged();
    void timelineHChanged();
    void scaledThumbSizeChanged();
    void redrawWindow();
    /// A key or the mouse was used.
    void userIsActive();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void setSizes(int snappedDensity, double dpiScale);

private:
    int m_currentDpi = 96;
    int m_timelineH = 0;
    double m_dpiScale = 1.0;
};
