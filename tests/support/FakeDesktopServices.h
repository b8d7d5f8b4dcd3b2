#pragma once

#include "shared/DesktopServices.h"

#include <QList>
#include <QStringList>

/// Imitates the desktop: keeps what it was asked to show and open, and opens nothing.
class FakeDesktopServices : public morvane::DesktopServices
{
public:
    QStringList shown;
    QList<QUrl> opened;
    /// What the next calls answer.
    bool canOpen = true;
    QString imageEditor;

    void showInGraphicalShell(const QString &path) override
    {
        shown.append(path);
    }
    bool openUrl(const QUrl &url) override
    {
        opened.append(url);
        return canOpen;
    }
    QString defaultImageEditor() const override
    {
        return imageEditor;
    }
};
