#pragma once

#include "capture/source/FramePacer.h"
#include "capture/source/VideoSource.h"

#include <QStringList>

/// Numbered images that stand in for a camera, 25 a second, over and over. Given one of them, it plays all of
/// that name with another number, in the order of the numbers; an image without a number plays alone. An
/// image that cannot be read is passed over; one of another size comes as it is.
class ImageSequenceSource : public VideoSource
{
public:
    static constexpr double framesPerSecond = 25;

    ImageSequenceSource(QString path, std::shared_ptr<CaptureClock> clock);

    bool open() override;
    bool isOpened() const override;
    bool read(cv::Mat &picture) override;
    bool set(int property, double value) override;
    double get(int property) override;
    void close() override;

    /// The paths that belong to the sequence of this image.
    static QStringList imagesLike(const QString &path);

private:
    bool readOne(const QString &path, cv::Mat &picture);

    QString m_path;
    FramePacer m_pacer;
    QStringList m_images;
    qsizetype m_next = 0;
    cv::Size m_size;
};
