#include "preview/MatConversion.h"

#include <opencv2/imgproc.hpp>

static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN, "A pixel of Format_ARGB32 has to lie in memory as BGRA");

namespace morvane {

namespace {

cv::Mat wrapped(const QImage &image, const uchar *bits)
{
    return cv::Mat(image.height(), image.width(), CV_8UC4, const_cast<uchar *>(bits),
                   static_cast<size_t>(image.bytesPerLine()));
}

bool isPlain(const QImage &image)
{
    return image.format() == QImage::Format_ARGB32 || image.format() == QImage::Format_RGB32;
}

} // namespace

cv::Mat pixelsOf(QImage &image)
{
    Q_ASSERT(isPlain(image));
    return wrapped(image, image.bits());
}

cv::Mat pixelsOf(const QImage &image)
{
    Q_ASSERT(isPlain(image));
    return wrapped(image, image.constBits());
}

cv::Mat bgrFrom(const QImage &image)
{
    cv::Mat bgr;
    if (image.isNull())
        return bgr;
    const QImage plain = isPlain(image) ? image : image.convertToFormat(QImage::Format_ARGB32);
    cv::cvtColor(pixelsOf(plain), bgr, cv::COLOR_BGRA2BGR);
    return bgr;
}

QImage imageFrom(const cv::Mat &bgr)
{
    if (bgr.empty() || bgr.type() != CV_8UC3)
        return {};
    QImage image(bgr.cols, bgr.rows, QImage::Format_ARGB32);
    if (image.isNull())
        return image;
    cv::Mat pixels = pixelsOf(image);
    cv::cvtColor(bgr, pixels, cv::COLOR_BGR2BGRA);
    return image;
}

} // namespace morvane
