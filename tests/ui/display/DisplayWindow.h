#pragma once

#include "support/ShellWindow.h"

#include <QColor>
#include <QImage>

/// The program with a film of small real pictures: captured frames of 320x180 in one colour each, PNG and
/// JPEG by turns, and references of the same size for the first rows.
class DisplayWindow : public ShellWindow
{
public:
    static constexpr int frameWidth = 320;
    static constexpr int frameHeight = 180;

    /// The colour of a captured frame's picture, and of a reference's.
    static QColor capturedColor(int row);
    static QColor referenceColor(int row);
    static ShellWindow::Options options(QSize size = {1280, 760});

    /// Makes the film with that many rows and shows the first one, in one row of the timeline.
    explicit DisplayWindow(int rows, const ShellWindow::Options &options = DisplayWindow::options());

    /// Adds a row with a picture of that size.
    void addPicture(const QImage &picture, const QString &name);

    /// The view of the Capture tab, its layers and its box; null while it was never shown.
    QQuickItem *display() const;
    QQuickItem *timingDisplay() const;
    /// An expression inside the layers' file.
    QVariant layers(const QString &expression) const;
    QQuickItem *cameraBox() const;
    QQuickItem *flicker() const;
    /// Waits until the view's picture has the size of the frames and these are on screen.
    bool waitForPictures();
    /// The window as it is shown now.
    QImage shot();
    /// The colour in the middle of an item, or at a place of it from 0 to 1.
    QColor colorAt(QQuickItem *item, QPointF place = {0.5, 0.5});

    /// What the scene's engine has warned of; unlike sceneWarnings() also when the window serves several test
    /// functions.
    QStringList warnings() const
    {
        return m_engineWarnings;
    }

    static bool near(const QColor &a, const QColor &b, int tolerance = 6);

private:
    QStringList m_engineWarnings;
};
