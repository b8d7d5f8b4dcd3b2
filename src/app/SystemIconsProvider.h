#pragma once

#include <QQuickImageProvider>

/// Icons of files and folders as the desktop shows them: "image://systemicons/PATH". A path that is not there
/// gets the icon of its kind. Called from the scene's loader thread or the main thread by the engine.
class SystemIconsProvider : public QQuickImageProvider
{
public:
    SystemIconsProvider();

    QPixmap requestPixmap(const QString &id, QSize *size, const QSize &requestedSize) override;
};
