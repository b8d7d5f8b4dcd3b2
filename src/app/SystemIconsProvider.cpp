#include "app/SystemIconsProvider.h"

#include <QFileIconProvider>
#include <QFileInfo>
#include <QIcon>

namespace {

constexpr int defaultSide = 32;

QIcon iconOf(const QString &path)
{
    const QFileIconProvider icons;
    const QFileInfo info(path);
    if (info.exists())
        return icons.icon(info);
    return icons.icon(info.suffix().isEmpty() ? QFileIconProvider::Folder : QFileIconProvider::File);
}

} // namespace

SystemIconsProvider::SystemIconsProvider() : QQuickImageProvider(QQuickImageProvider::Pixmap)
{
}

QPixmap SystemIconsProvider::requestPixmap(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QSize wanted(requestedSize.width() > 0 ? requestedSize.width() : defaultSide,
                       requestedSize.height() > 0 ? requestedSize.height() : defaultSide);
    QPixmap pixmap = iconOf(id).pixmap(wanted);
    if (pixmap.isNull()) {
        // A desktop without an icon theme: a clear picture, so that the scene does not report an error.
        pixmap = QPixmap(wanted);
        pixmap.fill(Qt::transparent);
    }
    if (size != nullptr)
        *size = pixmap.size();
    return pixmap;
}
