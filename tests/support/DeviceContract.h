#pragma once

#include <array>

/// The properties by which the scene knows any capturing device, the one that stands in for none included.
inline constexpr std::array deviceProperties{
    "connected",
    "threadIsRunning",
    "busy",
    "fps",
    "rotate",
    "paused",
    "renderSmooth",
    "histogramOn",
    "grayscale",
    "histogramDataY",
    "histogramDataR",
    "histogramDataG",
    "histogramDataB",
    "coordSystemWidth",
    "coordSystemHeight",
    "progressAction",
    "progressTotal",
    "progressCurrent",
    "focusFrameOn",
    "firmWareVer",
    "global",
    "powerFactor",
    "zoomFactor",
    "eyedropperOn",
};
