#pragma once

#include <QString>

namespace morvane {

/// What WebcamGlobal::backgroundImage becomes when the user chooses `path`: the bare file name. A file given
/// by an absolute path is copied into `backgroundFolder` first, unless one of that name is there. An empty
/// path clears the background and gives an empty name. A copy that fails is logged; the name is returned all
/// the same.
QString adoptBackgroundImage(const QString &path, const QString &backgroundFolder);

} // namespace morvane
