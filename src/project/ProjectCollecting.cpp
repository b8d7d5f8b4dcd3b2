#include "project/ProjectMapping.h"
#include "project/ProjectWriter.h"
#include "project/WebpDefaults.h"
#include "shared/StringText.h"
#include "shared/WebcamGlobal.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int standardWhiteBalance = 2800;

QMap<QString, int> collectAnimation(const QVariantMap &settings)
{
    QMap<QString, int> values;
    for (const morvane::WebpSetting &setting : morvane::webpSettingDefaults)
        values.insert(setting.key, settings.value(setting.key, setting.standard).toInt());
    return values;
}

QString settingText(const QVariant &value)
{
    const bool isReal = value.metaType() == QMetaType::fromType<double>();
    return isReal ? ProjectWriter::realText(value.toDouble()) : value.toString();
}

} // namespace

ProjectDocument ProjectMapping::collect(Rows rows) const
{
    ProjectDocument document;
    document.background =
        ProjectDocument::Background{m_global.backgroundPreviewScale(), m_global.backgroundOn(),
                                    QFileInfo(m_global.backgroundImage()).fileName()};
    document.videoEffectsString = m_global.videoEffectsString();
    document.animation = collectAnimation(m_global.webpSettings());
    document.frameSettings = collectFrameSettings();
    document.camera = collectCamera();
    document.path = collectPath();
    document.render = collectRender();
    document.info = ProjectDocument::Info{
        m_global.authorName(), m_global.authorSurname(), m_global.authorMiddleName(),
        m_global.movieTitle(), m_global.movieDirector(), m_global.movieScene(),
        m_global.movieLayer(),
    };
    document.filters = collectFilters();
    if (rows == Rows::Include)
        document.frames = m_neighbours.timeline.projectFrames();
    return document;
}

ProjectDocument::Frames ProjectMapping::collectFrameSettings() const
{
    ProjectDocument::Frames settings;
    collectOverlays(settings);
    collectPicture(settings);
    collectTimeline(settings);
    return settings;
}

void ProjectMapping::collectOverlays(ProjectDocument::Frames &settings) const
{
    settings.frameWidth = m_global.cropAreaW();
    settings.frameHeight = m_global.cropAreaH();
    settings.cropAreaOn = m_global.cropAreaOn();
    settings.techInfoOn = m_global.techInfoOn();
    settings.gridOn = m_global.gridOn();
    settings.gridOpacity = m_global.gridOpacity();
    settings.ruleOfThirdsGridOn = m_global.ruleOfThirdsGridOn();
    settings.crossOn = m_global.crossOn();
    settings.wideCross = m_global.wideCross();
    settings.safeAreaOn = m_global.safeAreaOn();
    settings.marginsOn = m_global.marginsOn();
    settings.guidesOn = m_global.guidesOn();
    settings.guidesOpacity = m_global.guidesOpacity();
    settings.pathColor = m_global.pathColor().name();
    settings.sightOpacity = m_global.sightOpacity();
    settings.safeAreaOpacity = m_global.safeAreaOpacity();
    settings.frameBorderOpacity = m_global.frameBorderOpacity();
    settings.marginsOpacity = m_global.marginsOpacity();
    settings.thirdsGridOpacity = m_global.thirdsGridOpacity();
    settings.gridHStep = m_global.gridHStep();
    settings.gridVStep = m_global.gridVStep();
}

void ProjectMapping::collectPicture(ProjectDocument::Frames &settings) const
{
    settings.crop = m_global.crop();
    settings.cropRAW = m_global.cropRAWtoCoordSystem();
    settings.refImageScale = m_global.referenceImageScale();
    settings.grayscale = m_global.grayscale();
    settings.videoExportPolicy = m_global.videoExportPolicy();
    settings.rotate = m_global.rotate();
    settings.exportSizeW = m_global.exportSizeW();
    settings.sequenceExportSizeW = m_global.sequenceExportSizeW();
    settings.smoothRender = m_global.smoothRender();
    settings.previewImageMirror = m_global.previewImageMirror();
    settings.previewImageShiftX = m_global.previewImageShiftX();
    settings.previewImageShiftY = m_global.previewImageShiftY();
    settings.scalePreviewImage = m_global.previewImageScaled();
    settings.stackDepth = m_global.stackDepth();
    settings.ramPreviewWidth = m_global.ramPreviewWidth();
    settings.ramPreviewHeight = m_global.ramPreviewHeight();
    settings.blend = m_global.blend();
    settings.resize = m_global.resize();
    settings.useFrameNameMask = m_global.useFrameNameMask();
    settings.frameNamePrefix = morvane::cleanStr(m_global.frameNameMask(), true, true);
    settings.digitalExposure = m_global.digitalExposure();
    settings.applyDigitalExposure = m_global.applyDigitalExposure();
    settings.applyCameraWB = m_global.applyCameraWB();
    settings.preserveHighlights = m_global.preserveHighlights();
    settings.preserveHighlightsValue = m_global.preserveHighlightsValue();
    settings.flipFlopDuration = m_global.flipFlopDuration();
}

void ProjectMapping::collectTimeline(ProjectDocument::Frames &settings) const
{
    const ProjectTimeline &timeline = m_neighbours.timeline;
    settings.timelineH = m_neighbours.screen.limitedTimelineH();
    settings.startIndex = timeline.startIndex();
    settings.timelineRangeStart = timeline.timelineRangeStart();
    settings.timelineRangeEnd = timeline.timelineRangeEnd();
    settings.ramPreviewLoop = timeline.loop();
    settings.pendulumOn = timeline.pendulum();
    settings.lightboxMode = m_neighbours.screen.lightboxMode();
    settings.lightboxColor = m_neighbours.screen.lightboxColor().name();
}

ProjectDocument::Camera ProjectMapping::collectCamera() const
{
    const QVariantMap settings = m_neighbours.camera.cameraSettings();
    const auto text = [&](const QString &key) {
        return settings.value(key).toString();
    };
    ProjectDocument::Camera camera;
    camera.av = text(u"Av"_s);
    camera.tv = text(u"Tv"_s);
    camera.wb = text(u"WB"_s);
    camera.iso = text(u"ISO"_s);
    camera.iccPath = text(u"ICCpath"_s);
    camera.pictureStyle = text(u"PictureStyle"_s);
    camera.expoComp = text(u"ExpoComp"_s);
    bool converts = false;
    const int temperature = settings.value(u"WBtemp"_s, standardWhiteBalance).toInt(&converts);
    if (converts)
        camera.wbTemp = temperature;
    return camera;
}

ProjectDocument::Path ProjectMapping::collectPath() const
{
    ProjectDocument::Path path;
    path.data = QString::fromLatin1(m_neighbours.path.pathBytes().toBase64());
    path.viewportWidth = m_neighbours.path.pathViewport().width();
    path.viewportHeight = m_neighbours.path.pathViewport().height();
    path.smooth = m_neighbours.path.smoothValue();
    return path;
}

ProjectDocument::Render ProjectMapping::collectRender() const
{
    ProjectDocument::Render render;
    render.crop = m_global.crop();
    render.timecode = m_global.renderTimecode();
    render.fps = m_neighbours.timeline.timelineFps();
    render.playerRangeStart = m_global.playerRangeStart();
    render.playerRangeEnd = m_global.playerRangeEnd();
    render.exportFramesInRangeOnly = m_global.exportFramesInRangeOnly();
    render.exportPicFormat = m_global.exportPicFormat();
    render.exportVideoFileName = m_global.renderFileName();
    render.exportPath = m_global.exportPath();
    render.translitOn = m_global.translitOn();
    return render;
}

ProjectDocument::Filters ProjectMapping::collectFilters() const
{
    ProjectDocument::Filters filters;
    filters.enabled = m_global.postProcessing();
    const QVariantMap settings = m_global.postProcessSettings();
    for (auto it = settings.cbegin(); it != settings.cend(); ++it)
        filters.values.insert(it.key(), settingText(it.value()));
    return filters;
}
