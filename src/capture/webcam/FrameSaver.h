#pragma once

#include "capture/webcam/CaptureRequests.h"

#include <QCoreApplication>
#include <QImage>
#include <QSize>

/// Hears how a shot is being saved, on the thread that saves it.
class SaveObserver
{
public:
    virtual ~SaveObserver() = default;

    virtual void progressTotal(int total) = 0;
    virtual void progressCurrent(int current) = 0;
    virtual void progressAction(const QString &action) = 0;
    /// Image and thumbnail are on the disk under these names, which are later by seconds than those asked for
    /// when those were taken.
    virtual void frameSaved(const QString &fullPath, const QString &tumbPath) = 0;
    /// The image is on the disk, the thumbnail is not.
    virtual void thumbnailFailed(const QString &reason) = 0;
    /// The image is not on the disk.
    virtual void imageFailed(const QString &reason) = 0;
};

/// Turns a picture into the files of a shot. Camera's thread.
class FrameSaver
{
    Q_DECLARE_TR_FUNCTIONS(FrameSaver)

public:
    explicit FrameSaver(SaveObserver &observer) : m_observer(observer)
    {
    }

    /// The picture stays as it is.
    void save(const QImage &picture, const CaptureRequest &request);

    /// Writes a TIFF beside each image, into a folder "tiff". No control sets it.
    void setSaveTiffToo(bool on)
    {
        m_saveTiffToo = on;
    }
    /// By how much a thumbnail is larger than 90 by 60.
    void setThumbnailScale(double scale)
    {
        m_thumbnailScale = scale;
    }

    /// The middle of a picture. A dimension below 1 or above the picture's is the picture's own.
    static QImage cropped(const QImage &picture, int width, int height);
    /// Every pixel as the gray of its luminance, worked out in linear light; opaque.
    static QImage grayscale(const QImage &picture);

private:
    QImage processed(const QImage &picture, const CaptureRequest &request);
    void saveTiff(const QImage &image, const QString &fullPath);
    struct Paths
    {
        QString full;
        QString thumb;
    };
    struct Encoded
    {
        /// Empty when there is a reason for that.
        QByteArray bytes;
        QString reason;
    };
    static Encoded encoded(const QImage &image, const char *format, int quality);
    void saveFiles(const QImage &image, const CaptureRequest &request);
    /// Leaves in `paths` what the files are called, and the thumbnail for them. Null when the image is on the
    /// disk, else why it is not.
    QString saveImage(const QImage &image, bool isJpeg, Paths &paths, Encoded &thumbnail) const;
    void saveThumbnail(const Encoded &thumbnail, const Paths &paths);
    QSize thumbnailBounds() const;

    SaveObserver &m_observer;
    QString m_tidiedFolder;
    double m_thumbnailScale = 1;
    bool m_saveTiffToo = false;
};
