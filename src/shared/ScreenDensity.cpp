#include "shared/ScreenDensity.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array densities{96, 120, 144, 192, 240, 288, 384, 480};
constexpr int largestDifference = 999;
constexpr int unknownDensityIndex = 1;

} // namespace

int ScreenDensity::snapped(int logicalDpi)
{
    const int effective = static_cast<int>(logicalDpi * (logicalDpi / 96.0));
    const auto above = std::lower_bound(densities.begin(), densities.end(), effective);
    if (above == densities.begin())
        return densities.front();
    const int below = *std::prev(above);
    return effective - below <= largestDifference ? below : densities.front();
}

int ScreenDensity::fontIndex(int snappedDensity)
{
    const auto found = std::find(densities.begin(), densities.end(), snappedDensity);
    if (found == densities.end())
        return unknownDensityIndex;
    return static_cast<int>(std::distance(densities.begin(), found));
}
