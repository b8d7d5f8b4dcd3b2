#pragma once

class WebcamGlobal;

namespace morvane {

/// Brings every project property of the shared state back to its default, except for what belongs to the
/// device, the screen and the run: those keep their values, without a signal in between.
void resetProjectState(WebcamGlobal &global);

} // namespace morvane
