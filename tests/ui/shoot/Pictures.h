#pragma once

#include <QColor>
#include <QImage>
#include <QList>

/// Measures of pictures, for those that went through a screen or a codec and are never equal. All work on a
/// copy of 160 x 90 pixels, so that one of a fitting shape in any size can be compared with any other.
namespace pictures {

QImage small(const QImage &picture);
/// Mean difference of the channels, 0 to 255. A picture that is not there differs from every other by 255.
double difference(const QImage &a, const QImage &b);
/// Mean distance of the channels from their mean over the picture; 0 for a picture of one colour.
double contrast(const QImage &picture);
/// The number of the picture that differs least, the first of equal ones; -1 without any.
int nearest(const QImage &picture, const QList<QImage> &candidates);
/// Whether a pixel of the whole picture has exactly this colour.
bool has(const QImage &picture, const QColor &color);

} // namespace pictures
