#pragma once

#include "project/ProjectDocument.h"
#include "project/SafeName.h"
#include "shared/Names.h"
#include "shared/Zum.h"

#include <limits>
#include <QLatin1StringView>

/// The attributes of each element, once, in the order in which they are written; reader and writer both walk
/// these lists. A visitor is called with the name, the value and, for all but booleans, the rule of reading.
namespace morvane::fields {

struct IntegerRule
{
    int lowest = std::numeric_limits<int>::min();
    int highest = std::numeric_limits<int>::max();
    /// What stands for a value out of bounds; without it such a value is refused.
    std::optional<int> otherwise = {};
    /// Whether the file may hold a real that is rounded to the nearest integer.
    bool rounded = false;
};

struct RealRule
{
    double lowest = 0.0;
    double highest = 1e6;
    /// Whether a value out of bounds becomes the nearest bound; otherwise it is refused.
    bool clamped = false;
};

struct TextRule
{
    enum class Kind {
        Any,
        /// A plain file name or nothing.
        FileName,
        /// The absolute path of a colour profile or nothing.
        ProfilePath,
    };

    /// Far more than anyone types, so that nothing the program itself wrote is refused.
    qsizetype longest = 65536;
    Kind kind = Kind::Any;
};

inline constexpr IntegerRule frameSide{0, maxFrameWidth};
inline constexpr IntegerRule gridStep{1, maxFrameWidth};
inline constexpr IntegerRule pixelShift{-maxFrameWidth, maxFrameWidth};
inline constexpr IntegerRule previewSide{0, 32768};
inline constexpr IntegerRule timelineRow{-1, 1'000'000};
inline constexpr IntegerRule exposureStep{-1000, 1000};
inline constexpr RealRule opacity{0.0, 100.0};
inline constexpr TextRule bareName{maxFileNameBytes, TextRule::Kind::FileName};
inline constexpr TextRule shortText{256};
inline constexpr TextRule pathText{16 * 1024 * 1024};

inline constexpr QLatin1StringView frameElement("Frame");
inline constexpr IntegerRule frameStatic{-1, 2};
inline constexpr IntegerRule framePhase{0, 999'999};

template <typename Group, typename Visitor>
void visitBackground(Group &group, Visitor &visit)
{
    visit("backgroundPreviewScale", group.backgroundPreviewScale, RealRule{0.1, 3.0, true});
    visit("backgroundOn", group.backgroundOn);
    visit("backgroundImage", group.backgroundImage, bareName);
}

template <typename Group, typename Visitor>
void visitOverlays(Group &group, Visitor &visit)
{
    visit("frameWidth", group.frameWidth, frameSide);
    visit("frameHeight", group.frameHeight, frameSide);
    visit("cropAreaOn", group.cropAreaOn);
    visit("techInfoOn", group.techInfoOn);
    visit("gridOn", group.gridOn);
    visit("gridOpacity", group.gridOpacity, opacity);
    visit("ruleOfThirdsGridOn", group.ruleOfThirdsGridOn);
    visit("crossOn", group.crossOn);
    visit("wideCross", group.wideCross);
    visit("safeAreaOn", group.safeAreaOn);
    visit("marginsOn", group.marginsOn);
    visit("guidesOn", group.guidesOn);
    visit("guidesOpacity", group.guidesOpacity, opacity);
    visit("pathColor", group.pathColor, shortText);
    visit("sightOpacity", group.sightOpacity, opacity);
    visit("safeAreaOpacity", group.safeAreaOpacity, opacity);
    visit("frameBorderOpacity", group.frameBorderOpacity, opacity);
    visit("gridHStep", group.gridHStep, gridStep);
    visit("gridVStep", group.gridVStep, gridStep);
}

template <typename Group, typename Visitor>
void visitPicture(Group &group, Visitor &visit)
{
    visit("crop", group.crop);
    visit("cropRAW", group.cropRAW);
    visit("refImageScale", group.refImageScale, RealRule{10.0, 300.0, true});
    visit("grayscale", group.grayscale);
    visit("videoExportPolicy", group.videoExportPolicy, IntegerRule{0, Zum::ExportPolicyCroppedAndResized});
    visit("rotate", group.rotate);
    visit("exportSizeW", group.exportSizeW, frameSide);
    visit("sequenceExportSizeW", group.sequenceExportSizeW, frameSide);
    visit("smoothRender", group.smoothRender);
    visit("marginsOpacity", group.marginsOpacity, opacity);
    visit("thirdsGridOpacity", group.thirdsGridOpacity, opacity);
    visit("previewImageMirror", group.previewImageMirror);
    visit("previewImageShiftX", group.previewImageShiftX, pixelShift);
    visit("previewImageShiftY", group.previewImageShiftY, pixelShift);
    visit("scalePreviewImage", group.scalePreviewImage);
    visit("stackDepth", group.stackDepth, IntegerRule{.lowest = 0, .highest = 1000, .rounded = true});
    visit("ramPreviewWidth", group.ramPreviewWidth, previewSide);
    visit("ramPreviewHeight", group.ramPreviewHeight, previewSide);
    visit("blend", group.blend, IntegerRule{0, Zum::BlendXor});
    visit("resize", group.resize);
}

template <typename Group, typename Visitor>
void visitFrameSettings(Group &group, Visitor &visit)
{
    visitOverlays(group, visit);
    visitPicture(group, visit);
    visit("useFrameNameMask", group.useFrameNameMask);
    visit("frameNamePrefix", group.frameNamePrefix, shortText);
    visit("timelineH", group.timelineH, IntegerRule{0, 100'000});
    visit("digitalExposure", group.digitalExposure, exposureStep);
    visit("applyDigitalExposure", group.applyDigitalExposure);
    visit("applyCameraWB", group.applyCameraWB);
    visit("preserveHighlights", group.preserveHighlights);
    visit("preserveHighlightsValue", group.preserveHighlightsValue, exposureStep);
    visit("startIndex", group.startIndex, IntegerRule{});
    visit("flipFlopDuration", group.flipFlopDuration, IntegerRule{500, 5000, 1000});
    visit("timelineRangeStart", group.timelineRangeStart, timelineRow);
    visit("timelineRangeEnd", group.timelineRangeEnd, timelineRow);
    visit("ramPreviewLoop", group.ramPreviewLoop);
    visit("pendulumOn", group.pendulumOn);
    visit("lightboxMode", group.lightboxMode, IntegerRule{0, Zum::LightboxModePicture});
    visit("lightboxColor", group.lightboxColor, shortText);
}

/// `visit` for what goes both ways, `visitWriteOnly` for what is written and never read back.
template <typename Group, typename Visitor, typename WriteOnlyVisitor>
void visitCamera(Group &group, Visitor &visit, WriteOnlyVisitor &visitWriteOnly)
{
    visit("Av", group.av, shortText);
    visit("Tv", group.tv, shortText);
    visit("WB", group.wb, shortText);
    visit("ISO", group.iso, shortText);
    visit("ICCpath", group.iccPath, TextRule{4096, TextRule::Kind::ProfilePath});
    visitWriteOnly("PictureStyle", group.pictureStyle, shortText);
    visit("ExpoComp", group.expoComp, shortText);
    visitWriteOnly("WBtemp", group.wbTemp, IntegerRule{});
}

template <typename Group, typename Visitor>
void visitPath(Group &group, Visitor &visit)
{
    visit("data", group.data, pathText);
    visit("pathViewportX", group.viewportWidth, RealRule{});
    visit("pathViewportY", group.viewportHeight, RealRule{});
    visit("smooth", group.smooth, IntegerRule{0, 1'000'000});
}

template <typename Group, typename Visitor>
void visitRender(Group &group, Visitor &visit)
{
    visit("crop", group.crop);
    visit("timecode", group.timecode);
    visit("fps", group.fps, RealRule{0.01, 1000.0});
    visit("playerRangeStart", group.playerRangeStart, IntegerRule{});
    visit("playerRangeEnd", group.playerRangeEnd, IntegerRule{});
    visit("exportFramesInRangeOnly", group.exportFramesInRangeOnly);
    visit("exportPicFormat", group.exportPicFormat, IntegerRule{0, Zum::ExportBMP});
    visit("exportVideoFileName", group.exportVideoFileName, bareName);
    visit("exportPath", group.exportPath, TextRule{});
    visit("translitOn", group.translitOn);
}

template <typename Group, typename Visitor>
void visitInfo(Group &group, Visitor &visit)
{
    visit("authorName", group.authorName, TextRule{});
    visit("authorSurname", group.authorSurname, TextRule{});
    visit("authorMiddleName", group.authorMiddleName, TextRule{});
    visit("movieTitle", group.movieTitle, TextRule{});
    visit("movieDirector", group.movieDirector, TextRule{});
    visit("movieScene", group.movieScene, TextRule{});
    visit("movieLayer", group.movieLayer, TextRule{});
}

} // namespace morvane::fields
