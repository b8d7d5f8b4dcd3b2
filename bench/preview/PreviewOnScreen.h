#pragma once

#include "preview/RamPreview.h"

#include <functional>
#include <QDir>
#include <QElapsedTimer>
#include <QQuickWindow>
#include <QTemporaryDir>

/// A preview that fills a window, over a project's folders made for the measurement.
class PreviewOnScreen
{
public:
    explicit PreviewOnScreen(QSize view);
    ~PreviewOnScreen();

    RamPreview &item()
    {
        return *m_item;
    }
    QQuickWindow &window()
    {
        return m_window;
    }
    QString captured() const
    {
        return m_folder.path() + QStringLiteral("/cap/");
    }
    /// The path of a disk copy that is whole; empty while there is none.
    QString copy() const;
    /// A JPEG with as much detail as a photograph has.
    void addPicture(const QString &name, QSize size, int seed = 0) const;

    /// Milliseconds from the change of the name until the item holds the picture, ready for the next frame of
    /// the scene; returns after that frame. Negative when it never comes.
    double show(const QString &name);
    /// Waits until the worker has nothing left to do, as far as can be seen from outside.
    static void settle(int milliseconds = 100);
    static bool waitFor(const std::function<bool()> &done, int limitMs = 20000);
    void removeCopies() const;

private:
    QDir copies() const
    {
        return QDir(m_folder.path() + QStringLiteral("/tmp/cache"));
    }

    QTemporaryDir m_folder;
    QQuickWindow m_window;
    RamPreview *m_item = nullptr;
};
