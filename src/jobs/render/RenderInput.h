#pragma once

#include "shared/Zum.h"

#include <QList>
#include <QSize>
#include <QString>
#include <QVariantMap>

class FramesModel;
class WebcamGlobal;

/// One row of the timeline as a render sees it.
struct RenderFrame
{
    /// Full path of the captured picture; empty for a row without one.
    QString path;
    bool mirrored = false;
    bool hidden = false;

    /// Not part of the movie.
    bool isLeftOut() const
    {
        return path.isEmpty() || hidden;
    }
};

/// Everything a render needs, copied while the job starts: what the user changes later does not reach it.
/// Sizes are pixels; rows count from 0.
struct RenderInput
{
    /// In lower case.
    QString formatName;
    QString scene;
    QString layer;
    bool timecode = false;
    int policy = Zum::ExportPolicyCropped;
    QSize cropSize;
    QSize exportSize;
    int bitrate = 0;
    /// Zum::RenderVideo quality, 0 to 3.
    int quality = 2;
    double fps = 25;
    /// Both ends belong to the range.
    int rangeStart = 0;
    int rangeEnd = 0;
    int frameCount = 0;
    /// The rows from rangeStart on; none when the range is no range of rows.
    QList<RenderFrame> frames;

    int postProcessing = Zum::NoProcessing;
    QVariantMap postProcessSettings;
    int ramPreviewHeight = 0;
    /// With a trailing "/".
    QString backgroundFolder;
    bool applyEffects = false;
    /// As the project keeps it.
    QString effect;
    QVariantMap webpSettings;

    /// Where the movie goes, with a trailing "/".
    QString videoFolder;
    /// Without folder and extension.
    QString fileName;

    /// A snapshot of the live objects. Main thread.
    static RenderInput take(const WebcamGlobal &global, const FramesModel &frames, const QString &projectDir);

    bool rangeIsGood() const
    {
        return rangeStart >= 0 && rangeStart <= rangeEnd && rangeEnd < frameCount;
    }
    /// Rows from one end to the other, whichever comes first.
    int rangeSize() const
    {
        return qMax(rangeStart, rangeEnd) - qMin(rangeStart, rangeEnd) + 1;
    }
    bool usesExportSize() const
    {
        return policy == Zum::ExportPolicyCroppedAndResized;
    }
    /// The size of the movie's pictures.
    QSize encodingSize() const
    {
        return usesExportSize() ? exportSize : cropSize;
    }
};
