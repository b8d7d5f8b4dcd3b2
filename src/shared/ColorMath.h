#pragma once

#include <QColor>
#include <QString>
#include <QVariantMap>

namespace morvane {

/// The colour with `value` added to its HSL hue or saturation, limited to 0 .. 1. The alpha becomes 1.
QColor hueShift(const QColor &color, qreal value);
QColor saturationShift(const QColor &color, qreal value);

/// Maps of ints: "hue", "saturation", "lightness", and "r", "g", "b".
QVariantMap hsla(const QColor &color);
QVariantMap colorToRgb(const QColor &color);

/// The colour with its value multiplied by `factor`, 1.0 leaving it as it is.
QColor lighterColor(const QColor &color, qreal factor);

/// Full-range JPEG conversion, each channel cut to an integer and limited to 0 .. 255; opaque.
QColor yCbCrToRgb(qreal y, qreal cb, qreal cr);

/// The HSL hue, 0 .. 359, of "#rrggbb", "#rgb", "0xrrggbb", bare hex digits or a colour's name; of a grey its
/// lightness. An empty or unknown name counts as "blue".
int colorNameToHue(const QString &name);

} // namespace morvane
