#include "jobs/render/RenderInput.h"

#include "shared/PathText.h"
#include "shared/WebcamGlobal.h"
#include "timeline/FramesModel.h"

namespace {

QList<RenderFrame> framesOf(const RenderInput &input, const FramesModel &model)
{
    if (!input.rangeIsGood())
        return {};
    const QString folder = model.folders().value(morvane::frameKey(Zum::CapFull)).toString();
    QList<RenderFrame> frames;
    frames.reserve(input.rangeSize());
    for (int row = input.rangeStart; row <= input.rangeEnd; ++row) {
        const Frame &frame = model.frameAt(row);
        const QString path = frame.capFull.isEmpty() ? QString() : folder + frame.capFull;
        frames.append({path, frame.mirrored, frame.hidden});
    }
    return frames;
}

} // namespace

RenderInput RenderInput::take(const WebcamGlobal &global, const FramesModel &frames,
                              const QString &projectDir)
{
    RenderInput input;
    input.formatName = global.renderFormatNameStr().toLower();
    input.scene = global.movieScene();
    input.layer = global.movieLayer();
    input.timecode = global.renderTimecode();
    input.policy = global.videoExportPolicy();
    input.cropSize = QSize(global.cropAreaW(), global.cropAreaH());
    input.exportSize = global.exportSize();
    input.bitrate = global.renderBitrate();
    input.quality = global.renderQmax();
    input.fps = frames.timelineFps();
    input.rangeStart = frames.timelineRangeStart();
    input.rangeEnd = frames.timelineRangeEnd();
    input.frameCount = frames.framesCount();
    input.frames = framesOf(input, frames);
    input.postProcessing = global.postProcessing();
    input.postProcessSettings = global.postProcessSettings();
    input.ramPreviewHeight = global.ramPreviewHeight();
    input.backgroundFolder = frames.folders().value(QString::number(Zum::BackgroundFull)).toString();
    input.applyEffects = global.applyPostProcessEffects();
    input.effect = global.videoEffectsStringParsed();
    input.webpSettings = global.webpSettings();
    input.videoFolder = morvane::ensureDirSeparator(projectDir) + QStringLiteral("video/");
    input.fileName = global.renderFileName();
    return input;
}
