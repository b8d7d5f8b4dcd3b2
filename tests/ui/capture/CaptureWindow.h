#pragma once

#include "support/ShellWindow.h"

#include <QDir>

/// The program with an open project and the built-in camera, which gives small pictures at its real pace.
class CaptureWindow : public ShellWindow
{
public:
    static ShellWindow::Options options(int kind = Zum::CapturingDeviceWebcam);

    explicit CaptureWindow(const ShellWindow::Options &options = CaptureWindow::options());

    DemoWebcamControls &demo()
    {
        return controllers().capture.demo();
    }
    /// Presses F5 and waits until the camera delivers.
    bool connectCamera();
    /// Waits until the camera has been let go of.
    bool disconnectCamera();
    /// Presses Return and waits until the shot has its frame.
    bool shoot();
    int framesNow()
    {
        return frames().framesCount();
    }
    /// The item of the panel with that name.
    QQuickItem *control(const QString &objectName) const;
    /// Has that item of the panel clicked, wherever it is scrolled to.
    void trigger(const char *objectName);
    /// The captured pictures that lie in the project's folder.
    QStringList capturedFiles();
    QString capturedFolder()
    {
        return window().capFullDirPath();
    }
    /// The picture of that row, as it lies on the disk.
    QString pictureOf(int row);
    /// The rows of the project file as it lies on the disk; -1 when it cannot be read.
    int framesInProjectFile();
    /// How many messages contain that text.
    int told(const QString &text) const;
};
