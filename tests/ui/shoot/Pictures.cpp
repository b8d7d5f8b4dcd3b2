#include "ui/shoot/Pictures.h"

#include <array>
#include <cstdlib>

namespace pictures {

namespace {

constexpr QSize smallSize(160, 90);
constexpr int channels = 3;
constexpr double values = double(smallSize.width()) * smallSize.height() * channels;

} // namespace

QImage small(const QImage &picture)
{
    const bool fits = picture.size() == smallSize && picture.format() == QImage::Format_RGB888;
    return fits ? picture
                : picture.scaled(smallSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                      .convertToFormat(QImage::Format_RGB888);
}

double difference(const QImage &a, const QImage &b)
{
    if (a.isNull() || b.isNull())
        return 255;
    const QImage one = small(a);
    const QImage other = small(b);
    qint64 sum = 0;
    for (int y = 0; y < smallSize.height(); ++y) {
        const uchar *left = one.constScanLine(y);
        const uchar *right = other.constScanLine(y);
        for (int x = 0; x < smallSize.width() * channels; ++x)
            sum += std::abs(left[x] - right[x]);
    }
    return double(sum) / values;
}

double contrast(const QImage &picture)
{
    if (picture.isNull())
        return 0;
    const QImage copy = small(picture);
    std::array<qint64, channels> sums{};
    for (int y = 0; y < smallSize.height(); ++y) {
        for (int x = 0; x < smallSize.width() * channels; ++x)
            sums.at(x % channels) += copy.constScanLine(y)[x];
    }
    const int pixels = smallSize.width() * smallSize.height();
    QImage even(smallSize, QImage::Format_RGB888);
    even.fill(QColor(int(sums[0] / pixels), int(sums[1] / pixels), int(sums[2] / pixels)));
    return difference(copy, even);
}

int nearest(const QImage &picture, const QList<QImage> &candidates)
{
    int found = -1;
    double least = 256;
    for (int i = 0; i < candidates.size(); ++i) {
        if (const double apart = difference(picture, candidates.at(i)); apart < least) {
            least = apart;
            found = i;
        }
    }
    return found;
}

bool has(const QImage &picture, const QColor &color)
{
    const QImage copy = picture.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < copy.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(copy.constScanLine(y));
        for (int x = 0; x < copy.width(); ++x) {
            if (line[x] == color.rgb())
                return true;
        }
    }
    return false;
}

} // namespace pictures
