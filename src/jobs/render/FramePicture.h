#pragma once

#include "jobs/render/RenderInput.h"

#include <functional>
#include <QCoreApplication>
#include <QImage>
#include <QStringList>

/// The picture of one frame on its way into a movie.
struct FramePicture
{
    enum class Outcome {
        Ready,
        /// The file could not be read: the movie goes on without it.
        Skipped,
        /// The picture came to nothing: the movie ends here.
        Lost,
    };

    Outcome outcome = Outcome::Ready;
    /// In Format_ARGB32.
    QImage image;
    /// What the user must hear of it.
    QStringList reports;
};

/// The chain of picture filters: picture, settings, strength.
using FrameFilter = std::function<QImage(const QImage &image, const QVariantMap &settings, double strength)>;

/// Makes the pictures of a movie: loads the file, runs the filters, fits it to the movie, mirrors it and
/// draws the timecode. Works on any thread, on one at a time; the input outlives it.
class FramePictureMaker
{
    Q_DECLARE_TR_FUNCTIONS(MorvaRobot)

public:
    FramePictureMaker(const RenderInput &input, FrameFilter filter);

    /// The picture of the row `index`, before which `handled` frames went into the movie.
    FramePicture make(int index, int handled) const;

private:
    void runFilters(QImage &image) const;
    void fit(FramePicture &picture, int index) const;
    void drawTimecode(FramePicture &picture, int handled) const;

    const RenderInput &m_input;
    FrameFilter m_filter;
};

namespace framepicture {

/// Puts the picture into the middle of a transparent one of that size; what is larger is cut off evenly.
/// Gives what to report, or nothing.
QStringList addMargins(QImage &image, const QSize &size, int index);

/// The line of the timecode: scene, layer, frame, clock and the frame within the second.
QString timecodeText(const QString &scene, const QString &layer, int handled, double fps);

} // namespace framepicture
