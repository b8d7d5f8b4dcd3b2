#pragma once

#include <cstdint>
#include <optional>
#include <QString>

extern "C" {
#include <libavcodec/codec_id.h>
#include <libavutil/pixfmt.h>
#include <libavutil/rational.h>
}

/// The tables behind the render formats: what a format, a quality and a frame rate mean for the encoder.
namespace movie {

struct Format
{
    /// Without the dot.
    QString extension;
    /// Stands behind the file's base name.
    QString nameSuffix;
    AVCodecID videoCodec = AV_CODEC_ID_NONE;
    /// AV_CODEC_ID_NONE for a movie without sound.
    AVCodecID audioCodec = AV_CODEC_ID_NONE;

    bool hasAudio() const
    {
        return audioCodec != AV_CODEC_ID_NONE;
    }
};

/// The format of a name in any case; an unknown name gives an AVI.
Format formatOf(const QString &name);

struct Quality
{
    /// Constant rate factor.
    int crf = 3;
    /// Percent.
    std::optional<int> percent;
    /// 3 to 10.
    float level = 10;

    /// The quality scale that encoders with a fixed quantiser take.
    int globalQuality() const;
    /// The rate factor of VP8 and VP9.
    int vpxCrf() const;
    /// Effort of the encoder, 0 to 6, less for a higher quality.
    int compressionLevel() const;
};

/// The quality of an index from 0 to 3; any other index gives the highest.
Quality qualityOf(int index);

struct Rate
{
    /// Frames per second, 5 to 60.
    double fps = 25;
    /// Frames from one key frame to the next.
    int gop = 1;
};

/// Brings a rate into what a movie can have.
Rate rateOf(double fps);

/// The length of one frame in seconds, reduced. Its parts fit into 16 bits, which MPEG-4 and APNG ask for.
AVRational frameDuration(double fps);

AVPixelFormat pixelFormatOf(AVCodecID codec);

} // namespace movie
