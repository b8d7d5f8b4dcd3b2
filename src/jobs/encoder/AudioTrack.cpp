#include "jobs/encoder/AudioTrack.h"

extern "C" {
#include <libavutil/channel_layout.h>
}

#include <algorithm>
#include <cmath>
#include <QtDebug>
#include <vector>

namespace {

constexpr int64_t bitRate = 64000;
constexpr int flacRate = 44100;
/// Samples of a frame where the encoder takes any number.
constexpr int freeFrameSize = 10000;

int rateOf(const AVCodec &codec)
{
    const QList<int> rates = ffmpeg::sampleRates(codec);
    return codec.id == AV_CODEC_ID_FLAC || rates.isEmpty() ? flacRate : rates.first();
}

} // namespace

bool AudioTrack::addTo(MovieFile &file, const AVCodec &codec, int compressionLevel, const QString &duration)
{
    m_file = &file;
    m_codec = &codec;
    m_stream = file.addStream();
    if (m_stream == nullptr)
        return false;
    m_context.reset(avcodec_alloc_context3(&codec));
    if (!m_context) {
        qWarning("Failed to allocate AVCodecContext");
        return false;
    }
    av_dict_set(&m_stream->metadata, "DURATION", duration.toLatin1().constData(), 0);
    m_context->bit_rate = bitRate;
    m_context->sample_fmt = ffmpeg::firstSampleFormat(codec, AV_SAMPLE_FMT_FLTP);
    m_context->sample_rate = rateOf(codec);
    const AVChannelLayout layout = ffmpeg::widestLayout(codec);
    av_channel_layout_copy(&m_context->ch_layout, &layout);
    m_context->time_base = {1, m_context->sample_rate};
    m_context->compression_level = compressionLevel;
    m_context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    m_stream->time_base = m_context->time_base;
    return true;
}

bool AudioTrack::open()
{
    int result = avcodec_open2(m_context.get(), m_codec, nullptr);
    if (result >= 0)
        result = avcodec_parameters_from_context(m_stream->codecpar, m_context.get());
    if (result < 0) {
        qWarning().noquote() << "Could not open audio codec" << ffmpeg::errorText(result);
        return false;
    }
    constexpr float fullTurn = 6.283185307179586F;
    m_increment = fullTurn / static_cast<float>(m_context->sample_rate);
    m_incrementOfIncrement = m_increment / static_cast<float>(m_context->sample_rate);

    SwrContext *resampler = nullptr;
    result =
        swr_alloc_set_opts2(&resampler, &m_context->ch_layout, m_context->sample_fmt, m_context->sample_rate,
                            &m_context->ch_layout, AV_SAMPLE_FMT_S16, m_context->sample_rate, 0, nullptr);
    m_resampler.reset(resampler);
    if (result < 0) {
        qWarning("Could not allocate resampler context");
        return false;
    }
    if (swr_init(resampler) < 0) {
        qWarning("Failed to initialize the resampling context");
        return false;
    }
    return true;
}

void AudioTrack::setLength(int frameCount, double fps)
{
    m_samplesWanted = static_cast<int64_t>(frameCount / fps) * m_context->sample_rate;
    m_samplesPerPicture = static_cast<int>(std::floor(m_context->sample_rate / fps + 0.5));
}

// A sine that never reaches its first whole step, but once in a great while.
void AudioTrack::generate(int16_t *samples, int count)
{
    const int channels = m_context->ch_layout.nb_channels;
    for (int i = 0; i < count; ++i) {
        const auto value = static_cast<int16_t>(std::sin(m_phase));
        for (int channel = 0; channel < channels; ++channel)
            *samples++ = value;
        m_phase += m_increment;
        m_increment += m_incrementOfIncrement;
    }
}

ffmpeg::FramePointer AudioTrack::frameOf(int samples)
{
    ffmpeg::FramePointer frame(av_frame_alloc());
    frame->format = m_context->sample_fmt;
    frame->sample_rate = m_context->sample_rate;
    frame->nb_samples = samples;
    // A codec that begins with filling would push its first packet before the first picture, and the
    // container would then move all pictures to make room.
    frame->pts = m_samplesWritten + m_context->initial_padding;
    if (av_channel_layout_copy(&frame->ch_layout, &m_context->ch_layout) < 0
        || av_frame_get_buffer(frame.get(), 0) < 0) {
        qWarning("Error allocating an audio buffer");
        return nullptr;
    }
    std::vector<int16_t> sound(static_cast<std::size_t>(samples) * m_context->ch_layout.nb_channels);
    generate(sound.data(), samples);
    const auto *input = reinterpret_cast<const uint8_t *>(sound.data());
    const int converted = swr_convert(m_resampler.get(), frame->extended_data, samples, &input, samples);
    if (converted < 0) {
        qWarning().noquote()
            << QStringLiteral("Error while converting audio: %1").arg(ffmpeg::errorText(converted));
        return nullptr;
    }
    return frame;
}

int AudioTrack::writeUpTo(int pictures)
{
    const int64_t wanted = std::min(m_samplesWanted, static_cast<int64_t>(m_samplesPerPicture) * pictures);
    const bool anySize = (m_codec->capabilities & AV_CODEC_CAP_VARIABLE_FRAME_SIZE) != 0;
    const int64_t frameSize = anySize || m_context->frame_size == 0 ? freeFrameSize : m_context->frame_size;
    while (m_samplesWritten < wanted) {
        const int64_t samples = std::min(frameSize, m_samplesWanted - m_samplesWritten);
        const ffmpeg::FramePointer frame = frameOf(static_cast<int>(samples));
        if (!frame)
            return AVERROR(ENOMEM);
        const int written = encode(frame.get());
        if (written < 0)
            return written;
        m_samplesWritten += samples;
    }
    return 0;
}

int AudioTrack::flush()
{
    return encode(nullptr);
}

int AudioTrack::encode(AVFrame *frame)
{
    const int sent = avcodec_send_frame(m_context.get(), frame);
    if (sent < 0) {
        qWarning().noquote() << "Error encoding audio frame" << ffmpeg::errorText(sent);
        return sent;
    }
    const ffmpeg::PacketPointer packet(av_packet_alloc());
    for (;;) {
        const int received = avcodec_receive_packet(m_context.get(), packet.get());
        if (received == AVERROR_EOF)
            qDebug("The encoder has been fully flushed, and there will be no more output packets");
        if (received == AVERROR(EAGAIN) || received == AVERROR_EOF)
            return 0;
        if (received < 0) {
            qWarning().noquote() << (received == AVERROR(EINVAL)
                                         ? "Audio codec not opened, or it is a decoder"
                                         : "Error encoding audio")
                                 << ffmpeg::errorText(received);
            return received;
        }
        if (packet->size == 0 && !m_file->takesLateHeaders()) {
            av_packet_unref(packet.get());
            continue;
        }
        const int written = m_file->write(*packet, *m_stream, m_context->time_base);
        if (written < 0) {
            qWarning().noquote() << "Error while writing audio frame" << ffmpeg::errorText(written);
            return written;
        }
    }
}
