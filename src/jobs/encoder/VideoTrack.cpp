#include "jobs/encoder/VideoTrack.h"

#include "jobs/encoder/WebpOptions.h"

extern "C" {
#include <libavutil/opt.h>
}

#include <QtDebug>
#include <thread>

namespace {

bool isVpx(AVCodecID codec)
{
    return codec == AV_CODEC_ID_VP8 || codec == AV_CODEC_ID_VP9;
}

// An encoder without the option keeps its own way.
void setOption(AVCodecContext &context, const char *name, int64_t value)
{
    const int result = av_opt_set_int(&context, name, value, AV_OPT_SEARCH_CHILDREN);
    if (result < 0 && result != AVERROR_OPTION_NOT_FOUND)
        qWarning().noquote() << "Encoder option" << name << ffmpeg::errorText(result);
}

// What the conversion from RGB produces; a player would guess another matrix from the size of the picture.
void describeColours(AVCodecContext &context)
{
    if (context.pix_fmt == AV_PIX_FMT_RGB24 || context.pix_fmt == AV_PIX_FMT_BGRA) {
        context.colorspace = AVCOL_SPC_RGB;
        context.color_range = AVCOL_RANGE_JPEG;
        return;
    }
    context.colorspace = AVCOL_SPC_SMPTE170M;
    context.color_range = context.pix_fmt == AV_PIX_FMT_YUVJ420P ? AVCOL_RANGE_JPEG : AVCOL_RANGE_MPEG;
}

} // namespace

bool VideoTrack::addTo(MovieFile &file, const AVCodec &codec, const Settings &settings)
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
    av_dict_set(&m_stream->metadata, "DURATION", settings.duration.toLatin1().constData(), 0);
    m_context->width = settings.size.width();
    m_context->height = settings.size.height();
    m_context->sample_aspect_ratio = {1, 1};
    m_context->pix_fmt = movie::pixelFormatOf(settings.codec);
    describeColours(*m_context);
    m_context->time_base = movie::frameDuration(settings.rate.fps);
    m_context->framerate = av_inv_q(m_context->time_base);
    m_stream->time_base = m_context->time_base;
    m_stream->avg_frame_rate = m_context->framerate;
    m_stream->sample_aspect_ratio = m_context->sample_aspect_ratio;
    applyRateControl(settings);
    applyCodecOptions(settings);
    return true;
}

void VideoTrack::applyRateControl(const Settings &settings)
{
    constexpr int64_t bitRate = 8000000;
    const bool av1 = settings.codec == AV_CODEC_ID_AV1;
    m_context->bit_rate = av1 ? 0 : bitRate;
    int crf = av1 ? 0 : settings.quality.crf;
    if (isVpx(settings.codec))
        crf = settings.quality.vpxCrf();
    if (av1 || isVpx(settings.codec)) {
        m_context->qmin = 0;
        m_context->qmax = 63;
    }
    setOption(*m_context, "crf", crf);
    m_context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER | AV_CODEC_FLAG_QSCALE;
    m_context->global_quality = settings.quality.globalQuality();
    // Every picture stands for itself, so that a player can step and cut at any frame.
    m_context->gop_size = 0;
}

void VideoTrack::applyCodecOptions(const Settings &settings)
{
    switch (settings.codec) {
        case AV_CODEC_ID_MPEG2VIDEO:
        case AV_CODEC_ID_MJPEG:
            m_context->max_b_frames = 0;
            break;
        case AV_CODEC_ID_MPEG1VIDEO:
            m_context->mb_decision = 0;
            break;
        case AV_CODEC_ID_MPEG4:
            m_context->profile = 0;
            break;
        case AV_CODEC_ID_THEORA:
            // Of a group of none, the container would mark key frames wrongly.
            m_context->gop_size = 1;
            break;
        case AV_CODEC_ID_H264:
            av_opt_set(m_context.get(), "preset", "slow", AV_OPT_SEARCH_CHILDREN);
            break;
        case AV_CODEC_ID_RAWVIDEO:
            m_context->bits_per_coded_sample = 32;
            break;
        case AV_CODEC_ID_VP8:
        case AV_CODEC_ID_VP9:
        case AV_CODEC_ID_AV1:
            m_context->max_b_frames = 3;
            m_context->profile = 0;
            m_context->level = 6;
            m_context->compression_level = 0;
            m_context->gop_size = settings.rate.gop;
            setOption(*m_context, "lossless", 1);
            // The two encoders of colour and of transparency must place their frames alike.
            setOption(*m_context, "auto-alt-ref", 0);
            // More than these wait for each other more than they help.
            m_context->thread_count = std::clamp(int(std::thread::hardware_concurrency()), 1, 4);
            break;
        case AV_CODEC_ID_WEBP:
            m_context->profile = 0;
            m_context->level = 6;
            applyWebpOptions(*m_context, settings.webp, settings.quality);
            break;
        default:
            break;
    }
}

bool VideoTrack::open(const QString &effect)
{
    int result = avcodec_open2(m_context.get(), m_codec, nullptr);
    if (result >= 0)
        result = avcodec_parameters_from_context(m_stream->codecpar, m_context.get());
    if (result < 0) {
        qWarning().noquote() << QStringLiteral(">>> Could not open video codec with error %1 (%2)")
                                    .arg(result)
                                    .arg(ffmpeg::errorText(result));
        return false;
    }
    if (!effect.isEmpty()) {
        m_effect.build(effect, {m_context->width, m_context->height, m_context->pix_fmt, m_context->time_base,
                                m_context->colorspace, m_context->color_range});
    }
    return true;
}

ffmpeg::FramePointer VideoTrack::frameOf(const QImage &image)
{
    if (image.width() != m_context->width || image.height() != m_context->height) {
        qWarning().noquote() << QStringLiteral(
                                    "Got wrong image size: image w:%1, image h: %2, video w: %3, video h: %4")
                                    .arg(image.width())
                                    .arg(image.height())
                                    .arg(m_context->width)
                                    .arg(m_context->height);
        return nullptr;
    }
    if (image.format() != QImage::Format_ARGB32) {
        qWarning("QVideoEncoder::get_video_frame: Wrong image format");
        return nullptr;
    }
    if (!m_conversion.isReady() && !m_conversion.prepare(image.size(), m_context->pix_fmt))
        return nullptr;
    ffmpeg::FramePointer frame(av_frame_alloc());
    frame->format = m_context->pix_fmt;
    frame->width = m_context->width;
    frame->height = m_context->height;
    frame->colorspace = m_context->colorspace;
    frame->color_range = m_context->color_range;
    frame->sample_aspect_ratio = m_context->sample_aspect_ratio;
    if (av_frame_get_buffer(frame.get(), 0) < 0) {
        qWarning("Could not allocate video frame");
        return nullptr;
    }
    if (m_conversion.convert(image, *frame) < 0)
        return nullptr;
    return frame;
}

int VideoTrack::write(const QImage &image)
{
    const ffmpeg::FramePointer frame = frameOf(image);
    if (!frame) {
        qWarning("Failed to get video frame");
        return -1;
    }
    frame->pts = m_nextPts++;
    if (!m_effect.isReady())
        return encode(frame.get());
    return m_effect.run(frame.get(), [this](AVFrame &filtered) { return encode(&filtered); });
}

int VideoTrack::flush()
{
    qDebug("Got a null image on input. Flush the encoder");
    if (m_nextPts == 0)
        return 0;
    if (m_effect.isReady()) {
        const int let = m_effect.run(nullptr, [this](AVFrame &filtered) { return encode(&filtered); });
        if (let < 0)
            return let;
    }
    return encode(nullptr);
}

int VideoTrack::encode(AVFrame *frame)
{
    if (frame != nullptr) {
        frame->pict_type = AV_PICTURE_TYPE_NONE;
        frame->quality = m_context->global_quality;
    }
    const int sent = avcodec_send_frame(m_context.get(), frame);
    if (sent < 0) {
        qWarning().noquote() << "Error encoding video frame" << ffmpeg::errorText(sent);
        return sent;
    }
    return receive();
}

// All packets that are ready; an encoder that looks ahead has none at first.
int VideoTrack::receive()
{
    const ffmpeg::PacketPointer packet(av_packet_alloc());
    for (;;) {
        const int received = avcodec_receive_packet(m_context.get(), packet.get());
        if (received == AVERROR_EOF)
            qDebug("The encoder has been fully flushed, and there will be no more output packets");
        if (received == AVERROR(EAGAIN) || received == AVERROR_EOF)
            return 0;
        if (received < 0) {
            qWarning().noquote() << (received == AVERROR(EINVAL) ? "Codec not opened, or it is a decoder"
                                                                 : "Error during encoding")
                                 << ffmpeg::errorText(received);
            return received;
        }
        packet->duration = 1;
        const int written = m_file->write(*packet, *m_stream, m_context->time_base);
        if (written < 0) {
            qWarning().noquote() << QStringLiteral("writeFrame: %1").arg(ffmpeg::errorText(written));
            return written;
        }
    }
}
