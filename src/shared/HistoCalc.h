#pragma once

#include <QImage>
#include <QList>

/// Counts the values of a picture for a histogram. Works on values only, in any thread.
namespace HistoCalc {

/// Per channel 256 shares of the picture's pixels, from value 0 to 255, and in the last place the largest of
/// them. All four are empty for a null picture.
struct Channels
{
    QList<qreal> y;
    QList<qreal> r;
    QList<qreal> g;
    QList<qreal> b;

    bool operator==(const Channels &) const = default;
};

/// Looks at the picture reduced to fit 300 by 300, so that the cost does not grow with its size. Alpha does
/// not count.
Channels calculate(const QImage &image);

} // namespace HistoCalc
