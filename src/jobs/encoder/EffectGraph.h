#pragma once

#include "jobs/encoder/Ffmpeg.h"

#include <functional>

/// One video effect between the pictures and the encoder. Frames go in and come out in the codec's format;
/// an effect that looks ahead gives them later, but gives every one.
class EffectGraph
{
public:
    struct Picture
    {
        int width = 0;
        int height = 0;
        AVPixelFormat format = AV_PIX_FMT_NONE;
        AVRational timeBase{1, 25};
        AVColorSpace colorSpace = AVCOL_SPC_UNSPECIFIED;
        AVColorRange colorRange = AVCOL_RANGE_UNSPECIFIED;
    };

    /// False, with a line in the log, when the description is not one effect that this FFmpeg has.
    ///
    /// A description comes with a project and is not trusted: only a single filter with one picture in and
    /// one out is taken, and none that names files, addresses or plug-ins. A number beyond the filter's
    /// limits counts as the limit.
    bool build(const QString &description, const Picture &picture);
    bool isReady() const
    {
        return m_ready;
    }

    using Take = std::function<int(AVFrame &)>;
    /// Sends a frame through, or with null lets out what is still inside; each frame that comes out goes to
    /// `take`. 0, or the error code that ended it.
    int run(AVFrame *frame, const Take &take);

private:
    bool makeEnds(const Picture &picture);
    bool connectEnds(const QString &description);

    ffmpeg::FilterGraph m_graph;
    /// Owned by the graph.
    AVFilterContext *m_source = nullptr;
    AVFilterContext *m_sink = nullptr;
    AVRational m_timeBase{1, 25};
    bool m_ready = false;
};
