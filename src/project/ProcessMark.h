#pragma once

#include <QString>

namespace morvane {

/// A text that only the running process with this id has, on this host and since it was started; empty when
/// there is no such process. Where the system tells no start times it is the same for all running ones.
QString processMark(qint64 pid);

} // namespace morvane
