#pragma once

#include "jobs/encoder/MovieFile.h"

/// The sound of a movie, which the program makes itself: silence, so that players which expect sound find
/// some.
class AudioTrack
{
public:
    /// Adds the stream to the file. `codec` belongs to FFmpeg.
    bool addTo(MovieFile &file, const AVCodec &codec, int compressionLevel, const QString &duration);
    bool open();

    /// What length is wanted: whole seconds of the frames expected.
    void setLength(int frameCount, double fps);
    /// Brings the sound up to the end of that many pictures. 0 or an error code.
    int writeUpTo(int pictures);
    int flush();

private:
    ffmpeg::FramePointer frameOf(int samples);
    void generate(int16_t *samples, int count);
    int encode(AVFrame *frame);

    MovieFile *m_file = nullptr;
    const AVCodec *m_codec = nullptr;
    AVStream *m_stream = nullptr;
    ffmpeg::CodecContext m_context;
    ffmpeg::Resampler m_resampler;
    int64_t m_samplesWritten = 0;
    int64_t m_samplesWanted = 0;
    int m_samplesPerPicture = 0;
    float m_phase = 0;
    float m_increment = 0;
    float m_incrementOfIncrement = 0;
};
