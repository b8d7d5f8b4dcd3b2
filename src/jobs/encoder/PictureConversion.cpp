#include "jobs/encoder/PictureConversion.h"

#include <cstring>
#include <QtDebug>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace pictureconversion {

namespace {

// SMPTE 170M in parts of 32768; the colour's coefficients add up to nothing, so that a grey has none.
constexpr int yBlue = 3208, yGreen = 16519, yRed = 8414;
constexpr int uBlue = 14392, uGreen = -9535, uRed = -4857;
constexpr int vBlue = -2340, vGreen = -12052, vRed = 14392;
constexpr int yShift = 15;
/// Colour is worked out from the sum of four pixels.
constexpr int colourShift = 17;
constexpr int yBias = (16 << yShift) + (1 << (yShift - 1));
constexpr int colourBias = (128 << colourShift) + (1 << (colourShift - 1));

uint8_t brightness(uint32_t pixel)
{
    return static_cast<uint8_t>((qBlue(pixel) * yBlue + qGreen(pixel) * yGreen + qRed(pixel) * yRed + yBias)
                                >> yShift);
}

void onePair(const RowPair &rows, int x)
{
    int blue = 0;
    int green = 0;
    int red = 0;
    for (int row = 0; row < 2; ++row) {
        const uint32_t *pixels = (row == 0 ? rows.upper : rows.lower) + x;
        for (int i = 0; i < 2; ++i) {
            blue += qBlue(pixels[i]);
            green += qGreen(pixels[i]);
            red += qRed(pixels[i]);
            rows.y[row][x + i] = brightness(pixels[i]);
            if (rows.alpha[row] != nullptr)
                rows.alpha[row][x + i] = static_cast<uint8_t>(qAlpha(pixels[i]));
        }
    }
    rows.u[x / 2] =
        static_cast<uint8_t>((blue * uBlue + green * uGreen + red * uRed + colourBias) >> colourShift);
    rows.v[x / 2] =
        static_cast<uint8_t>((blue * vBlue + green * vGreen + red * vRed + colourBias) >> colourShift);
}

#ifdef __SSE2__

__m128i coefficients(int blue, int green, int red)
{
    const auto b = static_cast<short>(blue);
    const auto g = static_cast<short>(green);
    const auto r = static_cast<short>(red);
    return _mm_setr_epi16(b, g, r, 0, b, g, r, 0);
}

// Four weighted sums from four pixels of four words each.
__m128i weighted(__m128i first, __m128i second, __m128i factors)
{
    const __m128 a = _mm_castsi128_ps(_mm_madd_epi16(first, factors));
    const __m128 b = _mm_castsi128_ps(_mm_madd_epi16(second, factors));
    const __m128i even = _mm_castps_si128(_mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)));
    const __m128i odd = _mm_castps_si128(_mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1)));
    return _mm_add_epi32(even, odd);
}

struct EightPixels
{
    /// Two pixels each, a word for each channel.
    __m128i words[4];
};

EightPixels load(const uint32_t *pixels, uint8_t *alpha)
{
    const __m128i zero = _mm_setzero_si128();
    const __m128i left = _mm_loadu_si128(reinterpret_cast<const __m128i *>(pixels));
    const __m128i right = _mm_loadu_si128(reinterpret_cast<const __m128i *>(pixels + 4));
    if (alpha != nullptr) {
        const __m128i wide = _mm_packs_epi32(_mm_srli_epi32(left, 24), _mm_srli_epi32(right, 24));
        _mm_storel_epi64(reinterpret_cast<__m128i *>(alpha), _mm_packus_epi16(wide, wide));
    }
    return {{_mm_unpacklo_epi8(left, zero), _mm_unpackhi_epi8(left, zero), _mm_unpacklo_epi8(right, zero),
             _mm_unpackhi_epi8(right, zero)}};
}

void storeBrightness(const EightPixels &pixels, uint8_t *y)
{
    const __m128i factors = coefficients(yBlue, yGreen, yRed);
    const __m128i bias = _mm_set1_epi32(yBias);
    const __m128i left =
        _mm_srai_epi32(_mm_add_epi32(weighted(pixels.words[0], pixels.words[1], factors), bias), yShift);
    const __m128i right =
        _mm_srai_epi32(_mm_add_epi32(weighted(pixels.words[2], pixels.words[3], factors), bias), yShift);
    const __m128i wide = _mm_packs_epi32(left, right);
    _mm_storel_epi64(reinterpret_cast<__m128i *>(y), _mm_packus_epi16(wide, wide));
}

// The sums of two by two pixels, two of them in each result.
__m128i squares(const EightPixels &upper, const EightPixels &lower, int at)
{
    const __m128i left = _mm_add_epi16(upper.words[at], lower.words[at]);
    const __m128i right = _mm_add_epi16(upper.words[at + 1], lower.words[at + 1]);
    return _mm_add_epi16(_mm_unpacklo_epi64(left, right), _mm_unpackhi_epi64(left, right));
}

void storeColour(__m128i left, __m128i right, __m128i factors, uint8_t *colour)
{
    const __m128i bias = _mm_set1_epi32(colourBias);
    const __m128i values = _mm_srai_epi32(_mm_add_epi32(weighted(left, right, factors), bias), colourShift);
    const __m128i wide = _mm_packs_epi32(values, values);
    const int four = _mm_cvtsi128_si32(_mm_packus_epi16(wide, wide));
    std::memcpy(colour, &four, sizeof(four));
}

int manyPairs(const RowPair &rows, int width)
{
    const __m128i uFactors = coefficients(uBlue, uGreen, uRed);
    const __m128i vFactors = coefficients(vBlue, vGreen, vRed);
    int x = 0;
    for (; x + 8 <= width; x += 8) {
        const auto alpha = [&rows, x](int row) {
            return rows.alpha[row] == nullptr ? nullptr : rows.alpha[row] + x;
        };
        const EightPixels upper = load(rows.upper + x, alpha(0));
        const EightPixels lower = load(rows.lower + x, alpha(1));
        storeBrightness(upper, rows.y[0] + x);
        storeBrightness(lower, rows.y[1] + x);
        const __m128i left = squares(upper, lower, 0);
        const __m128i right = squares(upper, lower, 2);
        storeColour(left, right, uFactors, rows.u + x / 2);
        storeColour(left, right, vFactors, rows.v + x / 2);
    }
    return x;
}

#else

int manyPairs(const RowPair &, int)
{
    return 0;
}

#endif

} // namespace

void toLimitedRange(const RowPair &rows, int width)
{
    for (int x = manyPairs(rows, width); x + 1 < width; x += 2)
        onePair(rows, x);
}

} // namespace pictureconversion

bool PictureConversion::prepare(const QSize &size, AVPixelFormat format)
{
    m_direct = (format == AV_PIX_FMT_YUV420P || format == AV_PIX_FMT_YUVA420P) && size.width() % 2 == 0
               && size.height() % 2 == 0;
    if (m_direct)
        return true;
    m_scaler.reset(sws_getContext(size.width(), size.height(), AV_PIX_FMT_BGRA, size.width(), size.height(),
                                  format, SWS_BICUBIC, nullptr, nullptr, nullptr));
    if (!m_scaler)
        qWarning("Cannot initialize the conversion context");
    return m_scaler != nullptr;
}

int PictureConversion::convert(const QImage &image, AVFrame &frame) const
{
    if (!m_direct) {
        const uint8_t *const rows[] = {image.constBits()};
        const int strides[] = {static_cast<int>(image.bytesPerLine())};
        const int result =
            sws_scale(m_scaler.get(), rows, strides, 0, image.height(), frame.data, frame.linesize);
        return result < 0 ? result : 0;
    }
    for (int y = 0; y + 1 < image.height(); y += 2) {
        pictureconversion::RowPair rows;
        rows.upper = reinterpret_cast<const uint32_t *>(image.constScanLine(y));
        rows.lower = reinterpret_cast<const uint32_t *>(image.constScanLine(y + 1));
        for (int row = 0; row < 2; ++row) {
            const ptrdiff_t line = y + row;
            rows.y[row] = frame.data[0] + line * frame.linesize[0];
            rows.alpha[row] =
                frame.format == AV_PIX_FMT_YUVA420P ? frame.data[3] + line * frame.linesize[3] : nullptr;
        }
        rows.u = frame.data[1] + ptrdiff_t(y / 2) * frame.linesize[1];
        rows.v = frame.data[2] + ptrdiff_t(y / 2) * frame.linesize[2];
        pictureconversion::toLimitedRange(rows, image.width());
    }
    return 0;
}
