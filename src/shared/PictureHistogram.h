#pragma once

#include <QImage>
#include <QVariantList>

namespace morvane {

/// The four channels of a picture's histogram. Each list has 257 reals: the share of the pixels for each of
/// the 256 values, and in the last place the largest share, by which the scene puts the tallest channel at
/// the back.
struct PictureHistogram
{
    QVariantList luminance;
    QVariantList red;
    QVariantList green;
    QVariantList blue;

    bool isEmpty() const
    {
        return luminance.isEmpty();
    }
};

/// Counts a picture, reduced to at most 300 by 300 pixels so that the cost does not depend on its size. A
/// null picture is told in the log and gives empty lists. Any thread.
PictureHistogram pictureHistogram(const QImage &picture);

} // namespace morvane
