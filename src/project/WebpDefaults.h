#pragma once

#include <array>
#include <QLatin1StringView>

namespace morvane {

/// One key of the animated WebP settings with its bounds and the value it has unless the user chose another.
struct WebpSetting
{
    QLatin1StringView key;
    int lowest;
    int highest;
    int standard;
};

/// In the order of the keys, which is the order of the project file's attributes.
inline constexpr std::array<WebpSetting, 8> webpSettingDefaults{{
    {QLatin1StringView("filtersharpness"), 0, 7, 5},
    {QLatin1StringView("filterstrength"), 0, 100, 100},
    {QLatin1StringView("filtertype"), 0, 1, 0},
    {QLatin1StringView("loopcount"), 0, 2000, 0},
    {QLatin1StringView("lossless"), 0, 1, 1},
    {QLatin1StringView("method"), 0, 6, 6},
    {QLatin1StringView("quality"), 0, 100, 100},
    {QLatin1StringView("snsstrength"), 0, 100, 100},
}};

} // namespace morvane
