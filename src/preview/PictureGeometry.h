#pragma once

#include <QRect>
#include <QSize>

struct PictureRequest;

/// The sizes that a picture goes through from its file to the screen, worked out before anything is decoded.
struct PictureGeometry
{
    static constexpr QSize largestCopy{1536, 864};

    /// What is scaled to the display: the loaded picture, or its reduced copy when it has to be reduced
    /// first.
    QSize reduced;
    /// The picture is larger than a copy may be: one is to be written.
    bool needsCopy = false;
    /// The size that is aimed at.
    QSize target;
    /// After scaling, before the crop.
    QSize scaled;
    /// What is kept of the scaled picture.
    QRect kept;
    /// Share of the width that is kept, -1 for no picture.
    double coefficient = -1;
    /// Size of the picture over the size of its file.
    double scale = 1;
    /// Height over width of what is kept; told by one policy only.
    double proportion = 1;
    bool tellsProportion = false;

    /// What the picture costs in memory.
    qint64 bytes() const
    {
        return qint64(kept.width()) * kept.height() * 3;
    }
    /// What has to be decoded at the least.
    QSize leastDecoded() const
    {
        return needsCopy ? reduced : reduced.boundedTo(scaled);
    }

    /// `source` is the size of the frame's own file, `loaded` that of the file which is read: the same, or
    /// the one of the disk copy.
    static PictureGeometry of(QSize source, QSize loaded, bool fromCopy, const PictureRequest &request);
};
