#include "app/ContextValues.h"

#include "shared/Names.h"
#include "shared/ScreenDensity.h"

#include <algorithm>
#include <array>
#include <QColor>

namespace morvane {

namespace {

using Values = QList<QQmlContext::PropertyPair>;

constexpr std::array<FontSizes, fontRowCount> fontTable{
    {{13, 11}, {13, 11}, {14, 12}, {18, 16}, {21, 19}, {26, 24}, {31, 29}, {41, 38}, {51, 47}}};

constexpr int smallestMultiple = 2;
constexpr int largestMultiple = 22;

/// Bytes of memory that all image caches together may take.
constexpr int cacheBudgetBytes = 1244160000;
constexpr int captureCacheBytes = cacheBudgetBytes / 8;
constexpr int ramCacheBytes = cacheBudgetBytes / 10 * 7;

/// Cuts off, as sizes in whole pixels are meant to be.
int scaled(int size, double factor)
{
    return static_cast<int>(size * factor);
}

int paddingOfRow(int row)
{
    switch (row) {
        case 1:
            return 2;
        case 2:
            return 0;
        case 3:
            return 4;
        default:
            return 8;
    }
}

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

void appendFontSizes(Values &values, const FontSizes &sizes)
{
    const int n = sizes.normal;
    const int s = sizes.smaller;
    values.append({text("DefFontSizeNormal"), n});
    values.append({text("DefFontSizeSmaler"), s});
    for (int k = smallestMultiple; k <= largestMultiple; ++k)
        values.append({QStringLiteral("DefFontSizeNormal_x%1").arg(k), k * n});
    values.append({
        {text("DefFontSizeNormal_TwoThirds"), scaled(n, 0.66)},
        {text("DefFontSizeNormal_Pltr"), scaled(n, 1.5)},
        {text("DefFontSizeBigger"), scaled(n, 1.5)},
        {text("DefFontSizeNormal_SevenEighths"), scaled(n, 1.75)},
        {text("DefFontSizeNormal_x2Half"), scaled(n, 2.5)},
        {text("DefFontSizeNormal_x3Half"), scaled(n, 3.0)},
        {text("DefFontSizeSmaler_2"), 2 * s},
        {text("DefFontSizeEvenSmaler"), scaled(s, 0.9)},
        {text("DefFontSizeMicro"), n / 2},
        {text("DefFontSizeNano"), n / 3},
        {text("DefFontSizePico"), n / 4},
    });
}

void appendLayout(Values &values, const FontChoice &font)
{
    const int n = font.sizes.normal;
    values.append({
        {text("DialogWidth"), 46 * n},
        {text("scrollBarW"), n},
        {text("RenderPanH"), 25 * n},
        {text("ControlsPanesBoxW"), 30 * n},
        {text("HPadding"), paddingOfRow(font.row)},
    });
}

void appendLimitsAndNames(Values &values, const ContextInputs &inputs)
{
    values.append({
        {text("ChromaSimilarityMin"), 0},
        {text("ChromaSimilarityMax"), 100},
        {text("ChromaBlendMin"), 1},
        {text("ChromaBlendMax"), 100},
        {text("commonMinScaleFactor"), 0.1},
        {text("NoteColor"), text("#00b773")},
        {text("CAPTURE_CACHE_MAX"), captureCacheBytes},
        {text("RAM_CACHE_MAX"), ramCacheBytes},
        {text("SoundsAvailable"), inputs.soundsAvailable},
        {text("winId"), 0},
        {text("slh"), text("/")},
        {text("prfx"), fileUrlPrefix},
        {text("textShift"), 0},
        {text("emptyFrameImage"), emptyFrameImage},
    });
}

void appendColours(Values &values)
{
    values.append({
        {text("globalFonColor"), text("#393939")},
        {text("GlobalDarkColor"), text("#393939")},
        {text("GlobalDarkerColor"), text("#333333")},
        {text("GlobalDarkestColor"), text("#282828")},
        {text("GlobalButtonColor"), text("#202020")},
        {text("activeColor"), text("#FF9900")},
        {text("defaultGrayColor"), text("#A0A0A0")},
        {text("controlsTextColor"), text("#999999")},
        {text("staticFrameColor"), text("#1854dd")},
        {text("staticFrameColorLight"), text("#2d7de7")},
        {text("LinkColor"), text("#3396FF")},
        {text("LinkColor2"), text("#1372d7")},
        {text("LinkColor3"), text("#1854dd")},
        {text("specialColor"), QColor(Qt::transparent)},
    });
}

void appendProjectAndDrawing(Values &values, const ContextInputs &inputs)
{
    values.append({
        {text("startIndexMax"), 30000},
        {text("thumbsDirName"), text("tmb")},
        {text("capturedDirName"), text("cap")},
        {text("refernceDirName"), text("ref")},
        {text("videoDirName"), text("video")},
        {text("LastProjectsKey"), lastProjectsKey},
        {text("BookmarksGroupKey"), bookmarksKey},
        {text("ExtEditorPathKey"), externalEditorKey},
        {text("LanguageLocaleKey"), localeKey},
        {text("digitalExposureMin"), 3},
        {text("digitalExposureMax"), 80},
        {text("digitalExposureDef"), 10},
        {text("referenceImageScaleMin"), 10.0},
        {text("referenceImageScaleDef"), 100.0},
        {text("referenceImageScaleMax"), 300.0},
        {text("defPathSmooting"), 300},
        {text("lineWidth"), static_cast<int>(100 * inputs.dpiScale) > 100 ? 3 : 2},
        {text("timelineScale"), inputs.timelineScale},
        {text("DpiScale"), inputs.dpiScale},
        {text("globalCorner"), 2},
        {text("wrong"), text("?")},
        {text("DefaultPhase"), 0},
    });
}

void appendExport(Values &values)
{
    values.append({
        {text("ExportJpegQuality"), 80},
        {text("DupliQuantityMin"), 1},
        {text("DupliQuantityMax"), 9},
        {text("maxFps"), 60.0},
        {text("DefaultAutosaveDelayMin"), autosaveDelayMinMinutes},
        {text("WbTempMax"), 10000},
        {text("WbTempMin"), 2800},
        {text("VideoFormatMPEG4"), formatAvi},
        {text("VideoFormatOGV"), formatOgv},
        {text("VideoFormatWEBM"), formatWebm},
        {text("VideoFormatAPNG"), formatApng},
        {text("VideoFormatWEBP"), formatWebp},
        {text("VideoFormatRAW"), formatRaw},
        {text("VideoFormatMKV"), formatMkv},
        {text("ExportVideoMinFrameWidth"), exportVideoMinFrameWidth},
        {text("ExportVideoMinFrameHeight"), exportVideoMinFrameHeight},
        {text("CanonCamImgQualityJPEG"), text("JPEG")},
        {text("CanonCamImgQualityRAW"), text("RAW")},
        {text("CanonCamImgQualityRAWJPEG"), text("RAW+JPEG")},
        {text("MaxFrameWidth"), maxFrameWidth},
        {text("MaxFrameHeight"), maxFrameHeight},
        {text("RAMdefFrameWidth"), 540},
        {text("RAMdefFrameHeight"), 360},
        {text("appType"), text("capture")},
        {text("underscore"), text("_")},
        {text("onunix"), false},
    });
}

} // namespace

FontSizes fontSizesOfRow(int row)
{
    return fontTable[static_cast<std::size_t>(std::clamp(row, 0, fontRowCount - 1))];
}

FontChoice chooseFont(const QVariant &stored, int snappedDensity)
{
    bool isNumber = false;
    // Through text: the settings file keeps texts, and 1.5 must not round to a row.
    const int index = stored.toString().toInt(&isNumber);
    if (isNumber && index >= 0 && index < fontRowCount)
        return {index, index, fontSizesOfRow(index)};
    const int row = ScreenDensity::fontIndex(snappedDensity);
    return {-1, row, fontSizesOfRow(row)};
}

double dpiScaleOf(const FontSizes &sizes)
{
    return sizes.normal / 13.0;
}

int timelineHeight(int windowHeight, const FontSizes &sizes)
{
    return std::max(std::min(windowHeight / 2, 18 * sizes.normal), 14 * sizes.normal);
}

Values contextValues(const ContextInputs &inputs)
{
    Values values;
    values.append({text("smoothUi"), true});
    appendFontSizes(values, inputs.font.sizes);
    appendLayout(values, inputs.font);
    appendLimitsAndNames(values, inputs);
    appendColours(values);
    appendProjectAndDrawing(values, inputs);
    appendExport(values);
    return values;
}

} // namespace morvane
