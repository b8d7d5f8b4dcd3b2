#include "jobs/encoder/Ffmpeg.h"

#include <algorithm>
#include <array>
#include <QtDebug>

namespace ffmpeg {

namespace {

struct KnownError
{
    int code;
    const char *text;
};

constexpr std::array knownErrors{
    KnownError{AVERROR_BSF_NOT_FOUND, "BSF not found"},
    KnownError{AVERROR_BUFFER_TOO_SMALL, "Buffer too small"},
    KnownError{AVERROR_DEMUXER_NOT_FOUND, "Demuxer not found"},
    KnownError{AVERROR_ENCODER_NOT_FOUND, "Encoder not found"},
    KnownError{AVERROR_EOF, "EOF error"},
    KnownError{AVERROR_EXIT, "EXIT error"},
    KnownError{AVERROR_EXTERNAL, "External error"},
    KnownError{AVERROR_BUG, "External library error"},
    KnownError{AVERROR_FILTER_NOT_FOUND, "Filter not found"},
    KnownError{AVERROR_INPUT_CHANGED, "Input changed"},
    KnownError{AVERROR_MUXER_NOT_FOUND, "Muxer not found"},
    KnownError{AVERROR_OPTION_NOT_FOUND, "Option not found"},
    KnownError{AVERROR_OUTPUT_CHANGED, "Output changed"},
    KnownError{AVERROR_PROTOCOL_NOT_FOUND, "Protocol not found"},
    KnownError{AVERROR_STREAM_NOT_FOUND, "Stream not found"},
    KnownError{AVERROR_BUG2, ">Unknown error 1"},
    KnownError{AVERROR_UNKNOWN, ">Unknown error 2"},
    KnownError{AVERROR_EXPERIMENTAL,
               "Requested feature is flagged experimental. Set strict_std_compliance "
               "if you really want to use it"},
};

// A message may come in pieces, and from a codec's own threads.
void writeToLog(void *source, int level, const char *format, va_list arguments)
{
    if (level > av_log_get_level())
        return;
    thread_local QByteArray line;
    thread_local int printPrefix = 1;
    std::array<char, 1024> piece{};
    av_log_format_line2(source, level, format, arguments, piece.data(), static_cast<int>(piece.size()),
                        &printPrefix);
    line += piece.data();
    if (!line.endsWith('\n'))
        return;
    qWarning().noquote() << "FFmpeg:" << QString::fromUtf8(line.trimmed());
    line.clear();
}

#if LIBAVCODEC_VERSION_INT >= AV_VERSION_INT(61, 13, 100)
template <typename T>
QList<T> listed(const AVCodec &codec, AVCodecConfig kind)
{
    const void *values = nullptr;
    int count = 0;
    if (avcodec_get_supported_config(nullptr, &codec, kind, 0, &values, &count) < 0 || values == nullptr)
        return {};
    const T *first = static_cast<const T *>(values);
    return QList<T>(first, first + count);
}

QList<int> listedRates(const AVCodec &codec)
{
    return listed<int>(codec, AV_CODEC_CONFIG_SAMPLE_RATE);
}

QList<AVSampleFormat> listedFormats(const AVCodec &codec)
{
    return listed<AVSampleFormat>(codec, AV_CODEC_CONFIG_SAMPLE_FORMAT);
}

QList<AVChannelLayout> listedLayouts(const AVCodec &codec)
{
    return listed<AVChannelLayout>(codec, AV_CODEC_CONFIG_CHANNEL_LAYOUT);
}
#else
QList<int> listedRates(const AVCodec &codec)
{
    QList<int> rates;
    for (const int *rate = codec.supported_samplerates; rate != nullptr && *rate != 0; ++rate)
        rates.append(*rate);
    return rates;
}

QList<AVSampleFormat> listedFormats(const AVCodec &codec)
{
    QList<AVSampleFormat> formats;
    for (const AVSampleFormat *format = codec.sample_fmts; format != nullptr && *format != AV_SAMPLE_FMT_NONE;
         ++format)
        formats.append(*format);
    return formats;
}

QList<AVChannelLayout> listedLayouts(const AVCodec &codec)
{
    QList<AVChannelLayout> layouts;
    for (const AVChannelLayout *layout = codec.ch_layouts; layout != nullptr && layout->nb_channels != 0;
         ++layout)
        layouts.append(*layout);
    return layouts;
}
#endif

} // namespace

QString errorText(int code)
{
    const auto known = std::find_if(knownErrors.begin(), knownErrors.end(),
                                    [code](const KnownError &error) { return error.code == code; });
    if (known != knownErrors.end())
        return QString::fromLatin1(known->text);
    std::array<char, AV_ERROR_MAX_STRING_SIZE> words{};
    const QString number = QStringLiteral("Unknown error %1").arg(code);
    // What the system says of it is what helps the user: a full disk, a folder that cannot be written.
    if (av_strerror(code, words.data(), words.size()) < 0)
        return number;
    return QStringLiteral("%1 (%2)").arg(number, QString::fromUtf8(words.data()));
}

void installLog()
{
    av_log_set_level(AV_LOG_ERROR);
    av_log_set_callback(writeToLog);
}

QList<int> sampleRates(const AVCodec &codec)
{
    QList<int> rates = listedRates(codec);
    std::sort(rates.begin(), rates.end(), std::greater<>());
    return rates;
}

AVSampleFormat firstSampleFormat(const AVCodec &codec, AVSampleFormat otherwise)
{
    const QList<AVSampleFormat> formats = listedFormats(codec);
    return formats.isEmpty() ? otherwise : formats.first();
}

AVChannelLayout widestLayout(const AVCodec &codec)
{
    AVChannelLayout widest = AV_CHANNEL_LAYOUT_STEREO;
    const QList<AVChannelLayout> layouts = listedLayouts(codec);
    if (layouts.isEmpty())
        return widest;
    return *std::max_element(
        layouts.begin(), layouts.end(),
        [](const AVChannelLayout &a, const AVChannelLayout &b) { return a.nb_channels < b.nb_channels; });
}

} // namespace ffmpeg
