#pragma once

namespace morvane {

/// How many steps of a control Page Up and Page Down take.
inline constexpr int pageSteps = 10;

} // namespace morvane
