#include "jobs/encoder/EffectGraph.h"
#include "jobs/render/EffectValues.h"
#include "shared/VideoEffect.h"
#include "shared/WebcamGlobal.h"

#include <cstdlib>

namespace {

// A graph that was built must take frames and give back as many.
void runGraph(const QString &description)
{
    EffectGraph graph;
    if (!graph.build(description, {64, 48, AV_PIX_FMT_YUVA420P, {1, 25}}))
        return;
    const auto take = [](AVFrame &frame) {
        if (frame.width <= 0 || frame.height <= 0 || frame.data[0] == nullptr)
            std::abort();
        return 0;
    };
    const ffmpeg::FramePointer frame(av_frame_alloc());
    frame->format = AV_PIX_FMT_YUVA420P;
    frame->width = 64;
    frame->height = 48;
    frame->pts = 0;
    if (av_frame_get_buffer(frame.get(), 0) < 0)
        return;
    graph.run(frame.get(), take);
    graph.run(nullptr, take);
}

} // namespace

// Whatever a project gives as its effect, reading it ends, gives the same map again from what it builds, and
// a filter graph made of it does no harm.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    av_log_set_level(AV_LOG_QUIET);
    WebcamGlobal global;
    global.setVideoEffectsString(
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    const QString text = global.videoEffectsStringParsed();
    const QVariantMap map = morvane::effect::parse(text);
    if (!map.isEmpty()) {
        QVariantMap again = morvane::effect::parse(morvane::effect::build(map));
        again.insert("filter", map.value("filter"));
        if (again != map)
            std::abort();
    }
    runGraph(effectvalues::adapted(text));
    return 0;
}
