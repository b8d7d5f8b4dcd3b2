#pragma once

#include "preview/PreviewWorld.h"
#include "preview/RamPreview.h"

#include <QQuickWindow>
#include <QSignalSpy>

/// A preview in a window, over the folders of a project made for the test.
class PreviewWindow
{
public:
    explicit PreviewWindow(QSize size = {400, 300}, bool visible = true)
    {
        Zum::setProjectFolders({world.root(), world.captured(), world.reference(), world.root() + "bg/", {}});
        item = new RamPreview(window.contentItem());
        item->setPlayingCaptured(true);
        item->setScaleFactor(0);
        window.resize(size);
        if (visible) {
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
        }
    }
    ~PreviewWindow()
    {
        delete item;
        Zum::setProjectFolders({});
    }

    /// Shows the picture and waits until it is painted.
    void show(const QString &name)
    {
        const QSignalSpy painted(item, &RamPreview::newPicRendered);
        item->setImageName(name);
        QTRY_VERIFY(!painted.isEmpty());
    }

    PreviewWorld world;
    QQuickWindow window;
    RamPreview *item = nullptr;
};
