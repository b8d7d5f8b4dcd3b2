#pragma once

#include <QString>

namespace morvane {

/// Longest file name, in bytes of UTF-8, that every file system in use takes.
inline constexpr int maxFileNameBytes = 255;

/// Whether `name`, read from a file that nobody vouches for, is a plain file name: no folder part, no "." or
/// "..", no drive letter, no control character, not too long. An empty name is not one.
bool isBareFileName(const QString &name);

} // namespace morvane
