#pragma once

#include <QRectF>
#include <QVariantList>

/// The frame sizes that the preset dialog offers. Built once; values only.
namespace morvane {

/// Proportions as rectangles with the ratio in x and y: 16:9, 16:10, 14:9, 4:3.
const QList<QRectF> &proportions();
/// Widths in units of 8 pixels, the largest first.
const QList<int> &presetsWidths();
/// One map for each proportion, rate and width, in this order, with "name", "proportion", "fps",
/// "framewidth" and "frameheight". Heights are multiples of 8.
const QVariantList &projectPresets();

} // namespace morvane
