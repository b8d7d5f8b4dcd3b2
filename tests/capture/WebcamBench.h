#pragma once

#include "capture/LivePicture.h"
#include "capture/webcam/WebCamWindow.h"
#include "shared/Settings.h"
#include "shared/WebcamGlobal.h"
#include "shared/Zum.h"
#include "support/FakeCapture.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

/// A webcam with everything around it but the scene: what the wrapper binds is done by the tests.
struct WebcamBench
{
    WebcamBench()
    {
        environment.setLivePicture(picture);
        window->setEnvironment(&environment);
        window->setGlobal(&global);
        window->setAvailWidth(1920);
        window->setAvailHeight(1080);
        QObject::connect(window.get(), &WebCamWindow::message, window.get(),
                         [this](int type, const QString &text) {
                             messages.append({type, text});
                         });
        QObject::connect(window.get(), &WebCamWindow::progressActionChanged, window.get(),
                         [this] { actions.append(window->progressAction()); });
    }

    bool connectCamera(int index = 0)
    {
        global.setCamindex(index);
        window->connects();
        return QTest::qWaitFor([this] { return window->connected() && picturesCome(); });
    }
    bool disconnectCamera()
    {
        window->disconnects();
        return waitForEnd();
    }
    bool waitForEnd()
    {
        return QTest::qWaitFor([this] { return !window->threadIsRunning(); });
    }
    /// The loop runs, so that shots are taken.
    bool picturesCome() const
    {
        const auto *view = window->liveView();
        return view->property("showing").toBool();
    }
    QString path(const QString &name) const
    {
        return folder.filePath(name);
    }
    void shoot(const QString &full = QStringLiteral("frame_norm_000000_260101120000.png"),
               const QString &thumb = QStringLiteral("frame_mini_000000_260101120000.jpg"))
    {
        window->captureFrame(QStringLiteral("png"), path(full), path(thumb), 0, 0, false, false, false);
    }
    bool told(int type, const QString &text) const
    {
        return messages.contains(std::pair<int, QString>(type, text));
    }

    static QString notPresent()
    {
        return QStringLiteral(
            "Camera not present, not connected or not supported. Check hardware connection");
    }

    QTemporaryDir folder;
    FakeMachine machine;
    LivePicture picture;
    WebcamGlobal global;
    Settings settings{folder.filePath(QStringLiteral("settings.ini"))};
    CaptureEnvironment environment{machine.parts(), settings};
    std::unique_ptr<WebCamWindow> window = std::make_unique<WebCamWindow>();
    QList<std::pair<int, QString>> messages;
    /// What the progress has said that it does.
    QStringList actions;
};
