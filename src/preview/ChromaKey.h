#pragma once

#include <array>
#include <QImage>

/// The arithmetic of keying: chroma in integers and the alpha that its distance from the key gives.
namespace chroma {

constexpr int blueChroma(int red, int green, int blue)
{
    return ((-173 * red - 339 * green + 511 + 512 * blue) >> 10) + 128;
}

constexpr int redChroma(int red, int green, int blue)
{
    return ((512 * red - 429 * green - 83 * blue + 511) >> 10) + 128;
}

/// The largest sum of the squares of two chroma differences.
constexpr int maxDistance = 2 * 255 * 255;

/// The alpha for each such sum. There are few enough to work each of them out once.
class AlphaTable
{
public:
    /// Both from 0 to 1. Below `similarity` all is transparent; alpha then rises to full over `smoothness`.
    AlphaTable(double similarity, double smoothness);

    uchar at(int distance) const
    {
        return m_alpha[static_cast<size_t>(distance)];
    }

private:
    std::array<uchar, maxDistance + 1> m_alpha;
};

/// Writes the alpha of every pixel. The picture is in Format_ARGB32. The key's chroma is taken of red, green
/// and blue, a pixel's with blue in red's place.
void writeAlpha(QImage &image, int keyBlueChroma, int keyRedChroma, const AlphaTable &alpha);

} // namespace chroma
