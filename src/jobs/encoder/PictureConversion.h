#pragma once

#include "jobs/encoder/Ffmpeg.h"

#include <QImage>

/// Brings pictures in Format_ARGB32 into the pixel format of a codec, of the same size.
///
/// The formats of most movies, with half the colour in each direction, are converted here, in a third of the
/// time that the general way takes: it is the most expensive step beside decoding and encoding.
class PictureConversion
{
public:
    /// `format` is full range for AV_PIX_FMT_YUVJ420P and limited range for the other YUV formats, by the
    /// matrix of SMPTE 170M. False when there is no way to that format.
    bool prepare(const QSize &size, AVPixelFormat format);
    bool isReady() const
    {
        return m_direct || m_scaler;
    }
    /// Fills the frame, whose buffers are there. 0 or an error code.
    int convert(const QImage &image, AVFrame &frame) const;

private:
    bool m_direct = false;
    ffmpeg::Scaler m_scaler;
};

namespace pictureconversion {

/// Two rows of `width` pixels to two rows of brightness and one row each of the two colours, which are of the
/// mean of two by two pixels. `width` is even. `alpha` may be null.
struct RowPair
{
    const uint32_t *upper = nullptr;
    const uint32_t *lower = nullptr;
    uint8_t *y[2]{};
    uint8_t *alpha[2]{};
    uint8_t *u = nullptr;
    uint8_t *v = nullptr;
};
void toLimitedRange(const RowPair &rows, int width);

} // namespace pictureconversion
