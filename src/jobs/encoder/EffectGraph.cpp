#include "jobs/encoder/EffectGraph.h"

extern "C" {
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
#include <libavutil/opt.h>
}

#include <algorithm>
#include <array>
#include <QtDebug>

namespace {

struct ReleaseInOut
{
    void operator()(AVFilterInOut *ends) const
    {
        avfilter_inout_free(&ends);
    }
};
using InOut = std::unique_ptr<AVFilterInOut, ReleaseInOut>;

bool takesOnePicture(const AVFilter &filter)
{
    const auto onePicture = [&filter](bool output) {
        const AVFilterPad *pads = output ? filter.outputs : filter.inputs;
        return avfilter_filter_pad_count(&filter, output ? 1 : 0) == 1
               && avfilter_pad_get_type(pads, 0) == AVMEDIA_TYPE_VIDEO;
    };
    return onePicture(false) && onePicture(true);
}

// Filters reach beyond the picture by text options: files to read or write, sockets, libraries to load.
bool reachesOutside(const AVFilter &filter)
{
    constexpr std::array words{"file",   "path",   "dir",   "url",    "model",  "plugin", "address",
                               "result", "log",    "stats", "name",   "object", "cover",  "weights",
                               "source", "shader", "plot",  "target", "command"};
    if (filter.priv_class == nullptr)
        return false;
    const AVClass *kind = filter.priv_class;
    for (const AVOption *option = nullptr; (option = av_opt_next(&kind, option)) != nullptr;) {
        if (option->type != AV_OPT_TYPE_STRING)
            continue;
        const QByteArray name(option->name);
        if (std::any_of(words.begin(), words.end(),
                        [&name](const char *word) { return name.contains(word); }))
            return true;
    }
    return false;
}

// What ends a filter, names its pads or quotes; none of the effects needs them.
bool isSingleFilter(const QString &description)
{
    return std::none_of(description.begin(), description.end(),
                        [](QChar character) { return QStringView(u",;[]'\\").contains(character); });
}

QString filterName(const QString &description)
{
    return description.section(QLatin1Char('='), 0, 0).trimmed();
}

// A control may go further than the filter of this FFmpeg does: then its nearest value counts.
QString limited(const QString &pair, const AVClass *kind)
{
    const QString key = pair.section(QLatin1Char('='), 0, 0);
    bool isNumber = false;
    const double value = pair.section(QLatin1Char('='), 1).toDouble(&isNumber);
    const AVOption *option = av_opt_find(&kind, key.toUtf8().constData(), nullptr, 0, AV_OPT_SEARCH_FAKE_OBJ);
    if (!isNumber || option == nullptr || option->min >= option->max
        || (value >= option->min && value <= option->max))
        return pair;
    switch (option->type) {
        case AV_OPT_TYPE_INT:
        case AV_OPT_TYPE_INT64:
        case AV_OPT_TYPE_FLOAT:
        case AV_OPT_TYPE_DOUBLE:
            return key + QLatin1Char('=') + QString::number(std::clamp(value, option->min, option->max));
        default:
            return pair;
    }
}

QString withinLimits(const QString &description)
{
    const AVFilter *filter = avfilter_get_by_name(filterName(description).toUtf8().constData());
    if (filter == nullptr || filter->priv_class == nullptr)
        return description;
    QStringList pairs = description.section(QLatin1Char('='), 1).split(QLatin1Char(':'));
    for (QString &pair : pairs)
        pair = limited(pair, filter->priv_class);
    return filterName(description) + QLatin1Char('=') + pairs.join(QLatin1Char(':'));
}

int mayBeUsed(const QString &description)
{
    const AVFilter *filter = avfilter_get_by_name(filterName(description).toUtf8().constData());
    if (filter == nullptr)
        return AVERROR_FILTER_NOT_FOUND;
    if (!isSingleFilter(description) || !takesOnePicture(*filter) || reachesOutside(*filter))
        return AVERROR(EPERM);
    return 0;
}

int parses(const QString &description)
{
    const ffmpeg::FilterGraph graph(avfilter_graph_alloc());
    AVFilterInOut *inputs = nullptr;
    AVFilterInOut *outputs = nullptr;
    const int result =
        avfilter_graph_parse_ptr(graph.get(), description.toUtf8().constData(), &inputs, &outputs, nullptr);
    avfilter_inout_free(&inputs);
    avfilter_inout_free(&outputs);
    return result;
}

InOut end(const char *name, AVFilterContext *filter)
{
    AVFilterInOut *made = avfilter_inout_alloc();
    made->name = av_strdup(name);
    made->filter_ctx = filter;
    made->pad_idx = 0;
    made->next = nullptr;
    return InOut(made);
}

QString sourceArguments(const EffectGraph::Picture &picture)
{
    QString arguments =
        QStringLiteral("video_size=%1x%2:pix_fmt=%3:time_base=%4/%5:pixel_aspect=%6/%7:width=%8:height=%9")
            .arg(picture.width)
            .arg(picture.height)
            .arg(picture.format)
            .arg(picture.timeBase.num)
            .arg(picture.timeBase.den)
            .arg(1)
            .arg(1)
            .arg(picture.width)
            .arg(picture.height);
#if LIBAVFILTER_VERSION_MAJOR >= 10
    // From here on the source compares each frame with what it was told.
    arguments += QStringLiteral(":colorspace=%1:range=%2").arg(picture.colorSpace).arg(picture.colorRange);
#endif
    return arguments;
}

} // namespace

bool EffectGraph::build(const QString &given, const Picture &picture)
{
    m_ready = false;
    const QString description = withinLimits(given);
    int tested = mayBeUsed(description);
    if (tested == 0)
        tested = parses(description);
    if (tested < 0) {
        qWarning().noquote()
            << QStringLiteral("Filter did not pass the test: %1").arg(ffmpeg::errorText(tested));
        return false;
    }
    m_timeBase = picture.timeBase;
    m_graph.reset(avfilter_graph_alloc());
    avfilter_graph_set_auto_convert(m_graph.get(), AVFILTER_AUTO_CONVERT_ALL);
    m_ready = makeEnds(picture) && connectEnds(description);
    return m_ready;
}

bool EffectGraph::makeEnds(const Picture &picture)
{
    const QString arguments = sourceArguments(picture);
    qDebug().noquote() << "Filter description: " << arguments;
    const int made = avfilter_graph_create_filter(&m_source, avfilter_get_by_name("buffer"), "in",
                                                  arguments.toLatin1().constData(), nullptr, m_graph.get());
    if (made < 0) {
        qWarning().noquote() << QStringLiteral("Filter: Cannot create buffer source %1 (%2)")
                                    .arg(made)
                                    .arg(ffmpeg::errorText(made));
        return false;
    }
    if (avfilter_graph_create_filter(&m_sink, avfilter_get_by_name("buffersink"), "out", nullptr, nullptr,
                                     m_graph.get())
        < 0) {
        qWarning("Filter: Cannot create buffer sink");
        return false;
    }
    const std::array formats{picture.format};
    if (av_opt_set_bin(m_sink, "pix_fmts", reinterpret_cast<const uint8_t *>(formats.data()),
                       static_cast<int>(sizeof(formats)), AV_OPT_SEARCH_CHILDREN)
        < 0) {
        qWarning("Filter: Cannot set output pixel format");
        return false;
    }
    return true;
}

bool EffectGraph::connectEnds(const QString &description)
{
    AVFilterInOut *outputs = end("in", m_source).release();
    AVFilterInOut *inputs = end("out", m_sink).release();
    const int parsed =
        avfilter_graph_parse_ptr(m_graph.get(), description.toUtf8().constData(), &inputs, &outputs, nullptr);
    avfilter_inout_free(&inputs);
    avfilter_inout_free(&outputs);
    if (parsed < 0) {
        qWarning().noquote() << QStringLiteral("Filter: Unable to graph parse string. Error: %1")
                                    .arg(ffmpeg::errorText(parsed));
        return false;
    }
    const int configured = avfilter_graph_config(m_graph.get(), nullptr);
    if (configured < 0) {
        qWarning().noquote()
            << QStringLiteral("Filter: Unable to init graph config %1").arg(ffmpeg::errorText(configured));
        return false;
    }
    return true;
}

int EffectGraph::run(AVFrame *frame, const Take &take)
{
    const int fed = av_buffersrc_add_frame_flags(m_source, frame, AV_BUFFERSRC_FLAG_KEEP_REF);
    if (fed < 0) {
        qWarning("Error while feeding the filtergraph");
        return fed;
    }
    const AVRational timeBase = av_buffersink_get_time_base(m_sink);
    for (;;) {
        const ffmpeg::FramePointer filtered(av_frame_alloc());
        const int got = av_buffersink_get_frame(m_sink, filtered.get());
        if (got == AVERROR(EAGAIN) || got == AVERROR_EOF)
            return 0;
        if (got < 0)
            return got;
        filtered->pts = av_rescale_q(filtered->pts, timeBase, m_timeBase);
        const int taken = take(*filtered);
        if (taken < 0)
            return taken;
    }
}
