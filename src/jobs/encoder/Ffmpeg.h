#pragma once

#include <cstdint>
#include <memory>
#include <QList>
#include <QString>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavfilter/avfilter.h>
#include <libavformat/avformat.h>
#include <libavutil/frame.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

/// What the encoder's parts share of FFmpeg: owning pointers, its error texts and its log.
namespace ffmpeg {

template <auto release>
struct Release
{
    template <typename T>
    void operator()(T *object) const
    {
        release(&object);
    }
};

template <auto release>
struct ReleaseByValue
{
    template <typename T>
    void operator()(T *object) const
    {
        release(object);
    }
};

using CodecContext = std::unique_ptr<AVCodecContext, Release<avcodec_free_context>>;
using FormatContext = std::unique_ptr<AVFormatContext, ReleaseByValue<avformat_free_context>>;
using FramePointer = std::unique_ptr<AVFrame, Release<av_frame_free>>;
using PacketPointer = std::unique_ptr<AVPacket, Release<av_packet_free>>;
using Scaler = std::unique_ptr<SwsContext, ReleaseByValue<sws_freeContext>>;
using Resampler = std::unique_ptr<SwrContext, Release<swr_free>>;
using FilterGraph = std::unique_ptr<AVFilterGraph, Release<avfilter_graph_free>>;

/// The program's words for an FFmpeg error code.
QString errorText(int code);

/// Sends FFmpeg's errors to the program's log. Harmless to call again.
void installLog();

/// Sample rates that an encoder lists, the highest first; empty when it takes any.
QList<int> sampleRates(const AVCodec &codec);
/// The first sample format that it lists, or `otherwise`.
AVSampleFormat firstSampleFormat(const AVCodec &codec, AVSampleFormat otherwise);
/// The listed channel layout with most channels; stereo when it lists none.
AVChannelLayout widestLayout(const AVCodec &codec);

} // namespace ffmpeg
