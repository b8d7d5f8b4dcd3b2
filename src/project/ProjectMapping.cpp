#include "project/ProjectMapping.h"

#include "project/FrameFiles.h"
#include "shared/MessageCentre.h"
#include "shared/StringText.h"
#include "shared/WebcamGlobal.h"

#include <QtDebug>

using namespace Qt::StringLiterals;

namespace {

constexpr int standardSmoothing = 300;

/// Calls a setter unless the file leaves the value open.
template <typename Object, typename Class, typename Argument, typename Value>
void set(Object &object, void (Class::*setter)(Argument), const std::optional<Value> &value)
{
    if (value)
        (object.*setter)(*value);
}

} // namespace

ProjectMapping::ProjectMapping(WebcamGlobal &global, ProjectNeighbours neighbours, MessageCentre &messages)
    : m_global(global), m_neighbours(neighbours), m_messages(messages)
{
}

void ProjectMapping::apply(const ProjectDocument &document)
{
    if (document.background)
        applyBackground(*document.background);
    if (document.animation)
        applyAnimation(*document.animation);
    set(m_global, &WebcamGlobal::setVideoEffectsString, document.videoEffectsString);
    if (document.frameSettings)
        applyFrameSettings(*document.frameSettings);
    else
        qDebug("Cannot find FrameSettings in project file");
    if (document.path)
        applyPath(*document.path);
    if (document.camera)
        applyCamera(*document.camera);
    else
        qDebug("Cannot find CanonCameraSettings in project file");
    if (document.render)
        applyRender(*document.render);
    else
        qDebug("Cannot find RenderVideoSettings in project file");
    if (document.info)
        applyInfo(*document.info);
    if (document.filters)
        applyFilters(*document.filters);
}

void ProjectMapping::applyBackground(const ProjectDocument::Background &background)
{
    set(m_global, &WebcamGlobal::setBackgroundPreviewScale, background.backgroundPreviewScale);
    set(m_global, &WebcamGlobal::setBackgroundOn, background.backgroundOn);
    set(m_global, &WebcamGlobal::setBackgroundImage, background.backgroundImage);
}

void ProjectMapping::applyAnimation(const QMap<QString, int> &animation)
{
    QVariantMap settings = m_global.webpSettings();
    for (auto it = animation.cbegin(); it != animation.cend(); ++it)
        settings.insert(it.key(), it.value());
    m_global.setWebpSettings(settings);
}

// The order matters: sizes rest on the export policy, overlays on the sizes, and the colours come last so
// that they repaint once.
void ProjectMapping::applyFrameSettings(const ProjectDocument::Frames &settings)
{
    set(m_global, &WebcamGlobal::setVideoExportPolicy, settings.videoExportPolicy);
    applyExposureAndSizes(settings);
    applyOverlays(settings);
    set(m_global, &WebcamGlobal::setCrop, settings.crop);
    set(m_global, &WebcamGlobal::setCropRAWtoCoordSystem, settings.cropRAW);
    set(m_global, &WebcamGlobal::setReferenceImageScale, settings.refImageScale);
    applyPreview(settings);
    applyTimeline(settings);
    applyColors(settings);
}

void ProjectMapping::applyExposureAndSizes(const ProjectDocument::Frames &settings)
{
    set(m_global, &WebcamGlobal::setApplyDigitalExposure, settings.applyDigitalExposure);
    set(m_global, &WebcamGlobal::setApplyCameraWB, settings.applyCameraWB);
    set(m_global, &WebcamGlobal::setPreserveHighlights, settings.preserveHighlights);
    set(m_global, &WebcamGlobal::setPreserveHighlightsValue, settings.preserveHighlightsValue);
    set(m_global, &WebcamGlobal::setDigitalExposure, settings.digitalExposure);
    m_global.setCropAreaW(settings.frameWidth.value_or(m_global.frameWidth()));
    m_global.setCropAreaH(settings.frameHeight.value_or(m_global.frameHeight()));
    set(m_global, &WebcamGlobal::setExportSizeW, settings.exportSizeW);
    set(m_global, &WebcamGlobal::setSequenceExportSizeW, settings.sequenceExportSizeW);
    set(m_global, &WebcamGlobal::setCropAreaOn, settings.cropAreaOn);
}

void ProjectMapping::applyOverlays(const ProjectDocument::Frames &settings)
{
    set(m_global, &WebcamGlobal::setGridOn, settings.gridOn);
    set(m_global, &WebcamGlobal::setGridOpacity, settings.gridOpacity);
    set(m_global, &WebcamGlobal::setGridHStep, settings.gridHStep);
    set(m_global, &WebcamGlobal::setGridVStep, settings.gridVStep);
    set(m_global, &WebcamGlobal::setRuleOfThirdsGridOn, settings.ruleOfThirdsGridOn);
    set(m_global, &WebcamGlobal::setThirdsGridOpacity, settings.thirdsGridOpacity);
    set(m_global, &WebcamGlobal::setCrossOn, settings.crossOn);
    set(m_global, &WebcamGlobal::setWideCross, settings.wideCross);
    set(m_global, &WebcamGlobal::setSightOpacity, settings.sightOpacity);
    set(m_global, &WebcamGlobal::setSafeAreaOn, settings.safeAreaOn);
    set(m_global, &WebcamGlobal::setSafeAreaOpacity, settings.safeAreaOpacity);
    set(m_global, &WebcamGlobal::setMarginsOn, settings.marginsOn);
    set(m_global, &WebcamGlobal::setMarginsOpacity, settings.marginsOpacity);
    set(m_global, &WebcamGlobal::setGuidesOn, settings.guidesOn);
    set(m_global, &WebcamGlobal::setGuidesOpacity, settings.guidesOpacity);
    set(m_global, &WebcamGlobal::setFrameBorderOpacity, settings.frameBorderOpacity);
}

void ProjectMapping::applyPreview(const ProjectDocument::Frames &settings)
{
    set(m_global, &WebcamGlobal::setTechInfoOn, settings.techInfoOn);
    set(m_global, &WebcamGlobal::setGrayscale, settings.grayscale);
    set(m_global, &WebcamGlobal::setRotate, settings.rotate);
    set(m_global, &WebcamGlobal::setSmoothRender, settings.smoothRender);
    set(m_global, &WebcamGlobal::setPreviewImageMirror, settings.previewImageMirror);
    set(m_global, &WebcamGlobal::setPreviewImageShiftX, settings.previewImageShiftX);
    set(m_global, &WebcamGlobal::setPreviewImageShiftY, settings.previewImageShiftY);
    set(m_global, &WebcamGlobal::setPreviewImageScaled, settings.scalePreviewImage);
    set(m_global, &WebcamGlobal::setStackDepth, settings.stackDepth);
    set(m_global, &WebcamGlobal::setRamPreviewWidth, settings.ramPreviewWidth);
    set(m_global, &WebcamGlobal::setRamPreviewHeight, settings.ramPreviewHeight);
    set(m_global, &WebcamGlobal::setBlend, settings.blend);
    set(m_global, &WebcamGlobal::setResize, settings.resize);
    set(m_global, &WebcamGlobal::setUseFrameNameMask, settings.useFrameNameMask);
    if (settings.frameNamePrefix)
        m_global.setFrameNameMask(morvane::cleanStr(*settings.frameNamePrefix, true, true));
}

void ProjectMapping::applyTimeline(const ProjectDocument::Frames &settings)
{
    ProjectTimeline &timeline = m_neighbours.timeline;
    set(m_neighbours.screen, &ProjectScreen::setTimelineH, settings.timelineH);
    set(timeline, &ProjectTimeline::setStartIndex, settings.startIndex);
    set(m_global, &WebcamGlobal::setFlipFlopDuration, settings.flipFlopDuration);
    set(timeline, &ProjectTimeline::setTimelineRangeStart, settings.timelineRangeStart);
    set(timeline, &ProjectTimeline::setTimelineRangeEnd, settings.timelineRangeEnd);
    set(timeline, &ProjectTimeline::setLoop, settings.ramPreviewLoop);
    set(timeline, &ProjectTimeline::setPendulum, settings.pendulumOn);
}

void ProjectMapping::applyColors(const ProjectDocument::Frames &settings)
{
    const QColor pathColor = colorOr(settings.pathColor, QColor(0x33, 0x96, 0xff));
    if (m_global.pathColor() != pathColor)
        m_global.setPathColor(pathColor);
    ProjectScreen &screen = m_neighbours.screen;
    if (settings.lightboxMode && screen.lightboxMode() != *settings.lightboxMode)
        screen.setLightboxMode(*settings.lightboxMode);
    const QColor lightboxColor = colorOr(settings.lightboxColor, QColor(Qt::white));
    if (screen.lightboxColor() != lightboxColor)
        screen.setLightboxColor(lightboxColor);
}

QColor ProjectMapping::colorOr(const std::optional<QString> &name, const QColor &standard) const
{
    if (!name || name->isEmpty())
        return standard;
    const QColor color(*name);
    if (color.isValid())
        return color;
    m_messages.post(Zum::FileMessage, Zum::Warning,
                    tr("The value \"%1\" in the project file is not a colour").arg(name->left(60)));
    return standard;
}

void ProjectMapping::applyPath(const ProjectDocument::Path &path)
{
    m_neighbours.path.setSmoothValue(path.smooth.value_or(standardSmoothing));
    const QSizeF viewport(path.viewportWidth.value_or(0.0), path.viewportHeight.value_or(0.0));
    if (viewport.width() > 0 && viewport.height() > 0)
        m_neighbours.path.setPathViewport(viewport);
    const QString data = path.data.value_or(QString());
    const QString older = path.pathData.value_or(QString());
    if (!data.isEmpty())
        m_neighbours.path.readPathBytes(QByteArray::fromBase64(data.toLatin1()));
    else if (!older.isEmpty())
        m_neighbours.path.readOlderPathText(older);
}

void ProjectMapping::applyCamera(const ProjectDocument::Camera &camera)
{
    const auto store = [this](const QString &key, const std::optional<QString> &value) {
        if (value)
            m_neighbours.camera.setCameraSetting(key, *value);
    };
    store(u"Av"_s, camera.av);
    store(u"Tv"_s, camera.tv);
    store(u"WB"_s, camera.wb);
    store(u"ISO"_s, camera.iso);
    store(u"ICCpath"_s, camera.iccPath);
    store(u"ExpoComp"_s, camera.expoComp);
}

void ProjectMapping::applyRender(const ProjectDocument::Render &render)
{
    set(m_global, &WebcamGlobal::setCrop, render.crop);
    set(m_global, &WebcamGlobal::setRenderTimecode, render.timecode);
    set(m_neighbours.timeline, &ProjectTimeline::setTimelineFps, render.fps);
    set(m_global, &WebcamGlobal::setTimelineFps, render.fps);
    set(m_global, &WebcamGlobal::setPlayerRangeStart, render.playerRangeStart);
    set(m_global, &WebcamGlobal::setPlayerRangeEnd, render.playerRangeEnd);
    set(m_global, &WebcamGlobal::setExportFramesInRangeOnly, render.exportFramesInRangeOnly);
    set(m_global, &WebcamGlobal::setExportPicFormat, render.exportPicFormat);
    if (render.exportVideoFileName) {
        const QString name = render.exportVideoFileName->simplified();
        m_global.setRenderFileName(name.isEmpty() ? u"videotest"_s : name);
    }
    if (render.exportPath) {
        const bool isThere = FrameFiles::pathIsThere(*render.exportPath);
        if (!isThere)
            FrameFiles::report({*render.exportPath}, m_messages);
        m_global.setExportPath(isThere ? *render.exportPath : QString());
    }
    set(m_global, &WebcamGlobal::setTranslitOn, render.translitOn);
    set(m_global, &WebcamGlobal::setRenderBitrate, render.bitrate);
}

void ProjectMapping::applyInfo(const ProjectDocument::Info &info)
{
    set(m_global, &WebcamGlobal::setAuthorName, info.authorName);
    set(m_global, &WebcamGlobal::setAuthorSurname, info.authorSurname);
    set(m_global, &WebcamGlobal::setAuthorMiddleName, info.authorMiddleName);
    set(m_global, &WebcamGlobal::setMovieTitle, info.movieTitle);
    set(m_global, &WebcamGlobal::setMovieDirector, info.movieDirector);
    set(m_global, &WebcamGlobal::setMovieScene, info.movieScene);
    set(m_global, &WebcamGlobal::setMovieLayer, info.movieLayer);
}

void ProjectMapping::applyFilters(const ProjectDocument::Filters &filters)
{
    set(m_global, &WebcamGlobal::setPostProcessing, filters.enabled);
    QVariantMap settings = m_global.postProcessSettings();
    for (auto it = filters.values.cbegin(); it != filters.values.cend(); ++it) {
        const bool isText = it.key() == "chromakey"_L1;
        settings.insert(it.key(), isText ? QVariant(it.value()) : QVariant(it.value().toDouble()));
    }
    m_global.setPostProcessSettings(settings);
}
