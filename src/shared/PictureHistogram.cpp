#include "shared/PictureHistogram.h"

#include <algorithm>
#include <array>
#include <QtDebug>

namespace morvane {

namespace {

constexpr int longestSide = 300;
using Bins = std::array<int, 256>;

QVariantList shares(const Bins &bins, int pixels)
{
    QVariantList list;
    list.reserve(257);
    for (const int count : bins)
        list.append(double(count) / pixels);
    list.append(double(*std::max_element(bins.begin(), bins.end())) / pixels);
    return list;
}

} // namespace

PictureHistogram pictureHistogram(const QImage &picture)
{
    if (picture.isNull()) {
        qDebug("HistoCalc: No input image for histogram");
        return {};
    }
    const QImage small = picture.scaled(longestSide, longestSide, Qt::KeepAspectRatio, Qt::FastTransformation)
                             .convertToFormat(QImage::Format_RGB32);
    Bins luminance{};
    Bins red{};
    Bins green{};
    Bins blue{};
    for (int y = 0; y < small.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(small.constScanLine(y));
        for (int x = 0; x < small.width(); ++x) {
            const int r = qRed(line[x]);
            const int g = qGreen(line[x]);
            const int b = qBlue(line[x]);
            ++luminance[(3 * r + b + 4 * g) >> 3];
            ++red[r];
            ++green[g];
            ++blue[b];
        }
    }
    const int pixels = small.width() * small.height();
    return {shares(luminance, pixels), shares(red, pixels), shares(green, pixels), shares(blue, pixels)};
}

} // namespace morvane
