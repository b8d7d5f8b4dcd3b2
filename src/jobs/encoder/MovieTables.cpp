#include "jobs/encoder/MovieTables.h"

#include "shared/Names.h"

#include <cmath>

extern "C" {
#include <libavutil/avutil.h>
}

namespace movie {

Format formatOf(const QString &name)
{
    const QString wanted = name.toLower();
    if (wanted == morvane::formatAvi)
        return {QStringLiteral("avi"), {}, AV_CODEC_ID_MPEG4, AV_CODEC_ID_MP2};
    if (wanted == morvane::formatMjpg)
        return {QStringLiteral("avi"), {}, AV_CODEC_ID_MJPEG, AV_CODEC_ID_MP2};
    if (wanted == morvane::formatWebm)
        return {QStringLiteral("webm"), {}, AV_CODEC_ID_VP8, AV_CODEC_ID_OPUS};
    if (wanted == morvane::formatOgv)
        return {QStringLiteral("ogv"), {}, AV_CODEC_ID_THEORA, AV_CODEC_ID_FLAC};
    if (wanted == morvane::formatWebp)
        return {QStringLiteral("webp"), {}, AV_CODEC_ID_WEBP};
    if (wanted == morvane::formatMkv)
        return {QStringLiteral("mkv"), {}, AV_CODEC_ID_VP8};
    if (wanted == morvane::formatApng)
        return {QStringLiteral("apng"), {}, AV_CODEC_ID_APNG};
    if (wanted == morvane::formatRaw)
        return {QStringLiteral("avi"), QStringLiteral("-uncompressed"), AV_CODEC_ID_RAWVIDEO,
                AV_CODEC_ID_MP2};
    return {QStringLiteral("avi"), {}, AV_CODEC_ID_MPEG4, AV_CODEC_ID_FLAC};
}

int Quality::globalQuality() const
{
    return static_cast<int>(level * FF_QP2LAMBDA);
}

int Quality::vpxCrf() const
{
    return 67 - static_cast<int>(level / 10 * 63);
}

int Quality::compressionLevel() const
{
    return 6 - static_cast<int>(level / 10 * 6);
}

Quality qualityOf(int index)
{
    switch (index) {
        case 0:
            return {63, 10, 3};
        case 1:
            return {35, 55, 5};
        case 2:
            return {10, 80, 7};
        case 3:
            return {5, 100, 10};
        default:
            return {};
    }
}

Rate rateOf(double fps)
{
    constexpr double fastest = 60;
    constexpr double slowest = 5;
    if (fps > fastest)
        return {fastest, 15};
    if (fps > slowest)
        return {fps, static_cast<int>(fps * 0.25)};
    return {slowest, 1};
}

AVRational frameDuration(double fps)
{
    constexpr int parts = 100000;
    constexpr int largest = 65535;
    AVRational duration{};
    av_reduce(&duration.num, &duration.den, parts, std::lround(fps * parts), largest);
    return duration;
}

AVPixelFormat pixelFormatOf(AVCodecID codec)
{
    switch (codec) {
        case AV_CODEC_ID_MJPEG:
            return AV_PIX_FMT_YUVJ420P;
        case AV_CODEC_ID_APNG:
            return AV_PIX_FMT_RGB24;
        case AV_CODEC_ID_RAWVIDEO:
        case AV_CODEC_ID_WEBP:
            return AV_PIX_FMT_BGRA;
        case AV_CODEC_ID_H264:
        case AV_CODEC_ID_VP8:
        case AV_CODEC_ID_VP9:
            return AV_PIX_FMT_YUVA420P;
        default:
            return AV_PIX_FMT_YUV420P;
    }
}

} // namespace movie
