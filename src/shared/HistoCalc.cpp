#include "shared/HistoCalc.h"

#include <algorithm>
#include <array>
#include <QtDebug>

namespace HistoCalc {

namespace {

constexpr int valueCount = 256;
constexpr int maxSide = 300;

using Counts = std::array<int, valueCount>;

QList<qreal> shares(const Counts &counts, int pixelCount)
{
    QList<qreal> list;
    list.reserve(valueCount + 1);
    for (const int count : counts)
        list.append(double(count) / pixelCount);
    list.append(double(*std::max_element(counts.begin(), counts.end())) / pixelCount);
    return list;
}

} // namespace

Channels calculate(const QImage &image)
{
    if (image.isNull()) {
        qDebug("HistoCalc: No input image for histogram");
        return {};
    }
    const QImage small = image.scaled(maxSide, maxSide, Qt::KeepAspectRatio, Qt::FastTransformation)
                             .convertToFormat(QImage::Format_ARGB32);
    Counts luminance{};
    Counts red{};
    Counts green{};
    Counts blue{};
    for (int y = 0; y < small.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(small.constScanLine(y));
        for (int x = 0; x < small.width(); ++x) {
            const int r = qRed(line[x]);
            const int g = qGreen(line[x]);
            const int b = qBlue(line[x]);
            ++luminance[static_cast<size_t>((3 * r + b + 4 * g) >> 3)];
            ++red[static_cast<size_t>(r)];
            ++green[static_cast<size_t>(g)];
            ++blue[static_cast<size_t>(b)];
        }
    }
    const int pixelCount = small.width() * small.height();
    return {shares(luminance, pixelCount), shares(red, pixelCount), shares(green, pixelCount),
            shares(blue, pixelCount)};
}

} // namespace HistoCalc
