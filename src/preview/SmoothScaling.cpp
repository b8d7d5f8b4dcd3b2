#include "preview/SmoothScaling.h"

#include <opencv2/imgproc.hpp>

namespace {

/// Between neighbours only: from half the size on down, pixels would be passed over.
bool neighboursSuffice(QSize from, QSize to)
{
    return to.width() * 2 >= from.width() && to.height() * 2 >= from.height();
}

cv::Mat wrap(QImage &image, int type)
{
    return {image.height(), image.width(), type, image.bits(), size_t(image.bytesPerLine())};
}

} // namespace

QImage morvane::scaledSmoothly(const QImage &image, QSize size)
{
    if (image.size() == size)
        return image;
    if (image.format() != QImage::Format_RGB32 || !neighboursSuffice(image.size(), size))
        return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QImage result(size, QImage::Format_RGB888);
    if (result.isNull())
        return result;
    const cv::Mat source(image.height(), image.width(), CV_8UC4, const_cast<uchar *>(image.constBits()),
                         size_t(image.bytesPerLine()));
    cv::Mat scaled;
    cv::resize(source, scaled, cv::Size(size.width(), size.height()), 0, 0, cv::INTER_LINEAR);
    cv::Mat target = wrap(result, CV_8UC3);
    cv::cvtColor(scaled, target, cv::COLOR_BGRA2RGB);
    return result;
}
