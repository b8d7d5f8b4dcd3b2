#pragma once

#include "jobs/encoder/EffectGraph.h"
#include "jobs/encoder/MovieFile.h"
#include "jobs/encoder/MovieTables.h"
#include "jobs/encoder/PictureConversion.h"

#include <QImage>
#include <QVariantMap>

/// The pictures of a movie: from QImage through the effect and the codec into the file.
class VideoTrack
{
public:
    struct Settings
    {
        AVCodecID codec = AV_CODEC_ID_NONE;
        QSize size;
        movie::Rate rate;
        movie::Quality quality;
        QVariantMap webp;
        /// For the stream's metadata.
        QString duration;
    };

    /// Adds the stream with its settings to the file. `codec` belongs to FFmpeg.
    bool addTo(MovieFile &file, const AVCodec &codec, const Settings &settings);
    /// Opens the codec; with a description also the effect, which may fail by itself.
    bool open(const QString &effect);
    bool effectIsReady() const
    {
        return m_effect.isReady();
    }

    /// Takes the next picture. 0, or a negative number when it was not taken or not written.
    int write(const QImage &image);
    /// Lets out everything that effect and codec still hold.
    int flush();
    /// Pictures taken so far.
    int frameCount() const
    {
        return static_cast<int>(m_nextPts);
    }

private:
    void applyRateControl(const Settings &settings);
    void applyCodecOptions(const Settings &settings);
    ffmpeg::FramePointer frameOf(const QImage &image);
    int encode(AVFrame *frame);
    int receive();

    MovieFile *m_file = nullptr;
    const AVCodec *m_codec = nullptr;
    AVStream *m_stream = nullptr;
    ffmpeg::CodecContext m_context;
    PictureConversion m_conversion;
    EffectGraph m_effect;
    int64_t m_nextPts = 0;
};
