#include "project/GlobalReset.h"

#include "shared/WebcamGlobal.h"

namespace morvane {

namespace {

// The project properties among these would otherwise go back to their defaults. The others are not touched by
// a reset; they stand here so that it stays so when one of them becomes a project property.
constexpr const char *rememberedProperties[] = {
    "fontSize",
    "connected",
    "camindex",
    "connectedCamIndex",
    "cameraName",
    "realCameraName",
    "frameWidth",
    "frameHeight",
    "maxScreenWidth",
    "maxScreenHeight",
    "ready",
    "paused",
    "camScale",
    "width",
    "height",
    "currentActiveTab",
    "grayscale",
    "rotate",
    "montageMode",
    "crossOn",
    "wideCross",
    "cropAreaOn",
    "cropRAWtoCoordSystem",
    "referenceImageScale",
    "marginsOn",
    "marginsOpacity",
    "gridHStep",
    "gridVStep",
    "techInfoOn",
    "fps",
    "mainTabsState",
    "coordSystemWidth",
    "coordSystemHeight",
    "histogramOn",
    "powerFactor",
    "timelineCompact",
    "videoExportPolicy",
    "videoExtractorOn",
    "timelineFps",
    "playerSource",
    "playerPaused",
    "playerPlaying",
    "renderFormatNameStr",
    "inactivityWatchOn",
    "inactivityMaximum",
    "flipFlopDuration",
};

} // namespace

void resetProjectState(WebcamGlobal &global)
{
    WebcamGlobal defaults;
    for (const char *name : rememberedProperties)
        defaults.setProperty(name, global.property(name));
    global.copyProjectPropertiesFrom(defaults);
    global.setChromakeyColorValue({});
    global.setPostProcessSettings({});
}

} // namespace morvane
