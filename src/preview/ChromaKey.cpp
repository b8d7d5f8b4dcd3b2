#include "preview/ChromaKey.h"

#include <cmath>

namespace chroma {

namespace {

constexpr double hardEdge = 0.0001;

uchar alphaOf(int distance, double similarity, double smoothness)
{
    const double d = std::sqrt(distance / double(maxDistance)) / 9;
    if (smoothness <= hardEdge)
        return d > similarity ? 255 : 0;
    const double t = (d - similarity) / smoothness;
    if (t > 1)
        return 255;
    return t <= 0 ? 0 : static_cast<uchar>(t * 255);
}

static_assert(blueChroma(0, 0, 255) == 255 && blueChroma(255, 255, 0) == 0);
static_assert(redChroma(255, 0, 0) == 255 && redChroma(0, 255, 255) == 0);

} // namespace

AlphaTable::AlphaTable(double similarity, double smoothness)
{
    for (int distance = 0; distance <= maxDistance; ++distance)
        m_alpha[static_cast<size_t>(distance)] = alphaOf(distance, similarity, smoothness);
}

void writeAlpha(QImage &image, int keyBlueChroma, int keyRedChroma, const AlphaTable &alpha)
{
    // In two loops, so that the compiler makes vectors of the first.
    constexpr int chunk = 512;
    std::array<int, chunk> distances;
    const int width = image.width();
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int begin = 0; begin < width; begin += chunk) {
            const int count = std::min(chunk, width - begin);
            QRgb *pixels = line + begin;
            for (int i = 0; i < count; ++i) {
                const int byte0 = static_cast<int>(pixels[i] & 0xff);
                const int byte1 = static_cast<int>((pixels[i] >> 8) & 0xff);
                const int byte2 = static_cast<int>((pixels[i] >> 16) & 0xff);
                const int cb = blueChroma(byte0, byte1, byte2) - keyBlueChroma;
                const int cr = redChroma(byte0, byte1, byte2) - keyRedChroma;
                distances[static_cast<size_t>(i)] = cb * cb + cr * cr;
            }
            for (int i = 0; i < count; ++i)
                pixels[i] = (pixels[i] & 0x00ffffffU)
                            | (static_cast<QRgb>(alpha.at(distances[static_cast<size_t>(i)])) << 24);
        }
    }
}

} // namespace chroma
