#pragma once

#include <optional>
#include <QList>
#include <QMap>
#include <QString>

/// One row of the timeline as the project file knows it. The names are bare file names; an empty one means
/// that the frame has no such picture.
struct ProjectFrame
{
    QString capTumb;
    QString capFull;
    QString refTumb;
    QString refFull;
    int staticState = 0;
    int phase = 0;
    bool mirrored = false;
    bool hidden = false;

    bool operator==(const ProjectFrame &) const = default;
};

/// A project file as plain values, one structure per element. A value that the file does not give, or gives
/// in a way that cannot be used, is empty and leaves the program's own value alone. Shared between threads by
/// copying.
struct ProjectDocument
{
    struct Background
    {
        std::optional<double> backgroundPreviewScale;
        std::optional<bool> backgroundOn;
        std::optional<QString> backgroundImage;
    };

    struct Frames
    {
        std::optional<int> frameWidth, frameHeight;
        std::optional<bool> cropAreaOn, techInfoOn, gridOn;
        std::optional<double> gridOpacity;
        std::optional<bool> ruleOfThirdsGridOn, crossOn, wideCross, safeAreaOn, marginsOn, guidesOn;
        std::optional<double> guidesOpacity;
        std::optional<QString> pathColor;
        std::optional<double> sightOpacity, safeAreaOpacity, frameBorderOpacity;
        std::optional<int> gridHStep, gridVStep;
        std::optional<bool> crop, cropRAW;
        std::optional<double> refImageScale;
        std::optional<bool> grayscale;
        std::optional<int> videoExportPolicy;
        std::optional<bool> rotate;
        std::optional<int> exportSizeW, sequenceExportSizeW;
        std::optional<bool> smoothRender;
        std::optional<double> marginsOpacity, thirdsGridOpacity;
        std::optional<bool> previewImageMirror;
        std::optional<int> previewImageShiftX, previewImageShiftY;
        std::optional<bool> scalePreviewImage;
        std::optional<int> stackDepth, ramPreviewWidth, ramPreviewHeight, blend;
        std::optional<bool> resize, useFrameNameMask;
        std::optional<QString> frameNamePrefix;
        std::optional<int> timelineH, digitalExposure;
        std::optional<bool> applyDigitalExposure, applyCameraWB, preserveHighlights;
        std::optional<int> preserveHighlightsValue, startIndex, flipFlopDuration;
        std::optional<int> timelineRangeStart, timelineRangeEnd;
        std::optional<bool> ramPreviewLoop, pendulumOn;
        std::optional<int> lightboxMode;
        std::optional<QString> lightboxColor;
    };

    struct Camera
    {
        std::optional<QString> av, tv, wb, iso, iccPath, pictureStyle, expoComp;
        std::optional<int> wbTemp;
    };

    struct Path
    {
        /// The path model's own bytes in base64.
        std::optional<QString> data;
        /// The plain text of older files, only read, and only of use when `data` is empty.
        std::optional<QString> pathData;
        std::optional<double> viewportWidth, viewportHeight;
        std::optional<int> smooth;
    };

    struct Render
    {
        std::optional<bool> crop, timecode;
        std::optional<double> fps;
        std::optional<int> playerRangeStart, playerRangeEnd;
        std::optional<bool> exportFramesInRangeOnly;
        std::optional<int> exportPicFormat;
        std::optional<QString> exportVideoFileName, exportPath;
        std::optional<bool> translitOn;
        /// Read from older files, never written.
        std::optional<int> bitrate;
    };

    struct Info
    {
        std::optional<QString> authorName, authorSurname, authorMiddleName;
        std::optional<QString> movieTitle, movieDirector, movieScene, movieLayer;
    };

    struct Filters
    {
        std::optional<int> enabled;
        /// Every key of the post-processing map when written; of a file, only the four that are known.
        QMap<QString, QString> values;
    };

    /// An element that the file does not have is empty.
    std::optional<Background> background;
    std::optional<QString> videoEffectsString;
    std::optional<QMap<QString, int>> animation;
    std::optional<Frames> frameSettings;
    std::optional<Camera> camera;
    std::optional<Path> path;
    std::optional<Render> render;
    std::optional<Info> info;
    std::optional<Filters> filters;
    QList<ProjectFrame> frames;
};
