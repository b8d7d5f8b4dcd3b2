#pragma once

#include <QString>
#include <QVariantList>

namespace morvane {

/// `value` behind eight zeros, cut to its last `size` characters: a number longer than `size` loses its
/// leading digits, and a size above nine adds no further zeros.
QString formatNumber(int value, int size = 6);

/// The int elements of `values` as formatNumber gives them, each followed by `separator`; then the last
/// character is cut, so a separator of two characters leaves one behind. Elements of other types are skipped.
QString formatSetOfNumbers(const QVariantList &values, const QString &separator, int size);

/// The next multiple of 8 at or above `value`; a negative remainder follows the language's truncating rule.
constexpr int roundUp(int value)
{
    const int remainder = value % 8;
    return remainder == 0 ? value : value + 8 - remainder;
}

/// Slider positions to reals: the value, raised at least to `minimum`, divided by ten thousand or by a
/// thousand.
constexpr double tenThousandths(int value, int minimum)
{
    return (value < minimum ? minimum : value) / 10000.0;
}
constexpr double thousandths(int value, int minimum)
{
    return (value < minimum ? minimum : value) / 1000.0;
}

} // namespace morvane
