#pragma once

#include <optional>
#include <QStringList>

namespace morvane {

/// The pictures of a project of the older kind, as full paths by name: those of the "camera" folder in its
/// content folder, or of "web" where there is none. Empty, with a line in the log, when the paths are empty
/// or neither folder is there.
std::optional<QStringList> legacyProjectImages(const QString &projPath, const QString &projContntDirPath);

} // namespace morvane
