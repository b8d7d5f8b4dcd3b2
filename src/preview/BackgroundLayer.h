#pragma once

#include <QDateTime>
#include <QImage>
#include <QSize>
#include <QString>

/// The picture behind a keyed frame. The last one is kept at the size it was wanted, so that a run of frames
/// over one background reads and scales it once; a file that has changed is read anew.
///
/// On one thread at a time.
class BackgroundLayer
{
public:
    /// The file brought to the height of the frame and then into frame size times scale, its shape kept; a
    /// null picture if the file cannot be read. At a scale that leaves nothing it is empty but not null.
    struct Result
    {
        bool readable = false;
        QImage image;
    };

    Result read(const QString &path, QSize frame, double scale);

    /// Draws the frame over the picture, which is centred. Format_ARGB32, of the frame's size.
    static QImage compose(const QImage &background, const QImage &frame);

private:
    struct Key
    {
        QString path;
        QDateTime modified;
        qint64 bytes = -1;
        QSize frame;
        double scale = 0;

        bool operator==(const Key &) const = default;
    };

    Key m_key;
    QImage m_image;
};
