#include "preview/BackgroundLayer.h"

#include <algorithm>
#include <cmath>
#include <QFileInfo>
#include <QPainter>

namespace {

/// Above so many pixels only the visible part of the picture is made.
constexpr double maxWholePixels = 1 << 26;
constexpr double maxScale = 100;

/// The size of `shape` brought to a height.
QSizeF atHeight(QSize shape, int height)
{
    return QSizeF(double(shape.width()) * height / shape.height(), height);
}

bool isModest(QSizeF size)
{
    return size.width() * size.height() <= maxWholePixels;
}

/// The middle of the picture at a size too large to be made, as a frame sees it.
QImage visiblePart(const QImage &image, QSizeF size, QSize frame)
{
    QImage part(frame, QImage::Format_ARGB32_Premultiplied);
    part.fill(Qt::transparent);
    QPainter painter(&part);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QPointF corner((frame.width() - size.width()) / 2, (frame.height() - size.height()) / 2);
    painter.drawImage(QRectF(corner, size), image);
    return part;
}

QImage scaledToFrame(const QImage &image, QSize frame, double scale)
{
    const QSizeF room = QSizeF(frame) * std::min(scale, maxScale);
    if (!(room.width() >= 1 && room.height() >= 1))
        return {};
    const QSizeF size = QSizeF(image.size()).scaled(room, Qt::KeepAspectRatio);
    const bool modest = isModest(atHeight(image.size(), frame.height()));
    QImage first = modest ? image.scaledToHeight(frame.height(), Qt::SmoothTransformation) : QImage();
    // Too large to be made at that height, or too thin to be seen.
    if (first.isNull())
        first = image;
    if (!isModest(size))
        return visiblePart(first, size, frame);
    return first.scaled(static_cast<int>(room.width()), static_cast<int>(room.height()), Qt::KeepAspectRatio,
                        Qt::SmoothTransformation);
}

} // namespace

BackgroundLayer::Result BackgroundLayer::read(const QString &path, QSize frame, double scale)
{
    const QFileInfo file(path);
    const Key key{path, file.lastModified(), file.size(), frame, scale};
    if (key == m_key)
        return {true, m_image};
    const QImage image(path);
    if (image.isNull())
        return {};
    m_key = key;
    m_image = scaledToFrame(image, frame, scale).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return {true, m_image};
}

QImage BackgroundLayer::compose(const QImage &background, const QImage &frame)
{
    QImage canvas(frame.size(), QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    {
        QPainter painter(&canvas);
        const QSize rest = frame.size() - background.size();
        if (!background.isNull())
            painter.drawImage(rest.width() / 2, rest.height() / 2, background);
        painter.drawImage(0, 0, frame);
    }
    return std::move(canvas).convertToFormat(QImage::Format_ARGB32);
}
