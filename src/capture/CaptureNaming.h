#pragma once

#include <QString>

/// The names of the files of a shot.
namespace capturenaming {

/// What the names are made of.
struct Rules
{
    /// Whether the mask stands in the place of the usual beginning.
    bool useMask = false;
    QString mask;
    QString frameLabel;
    QString thumbLabel;
    QString frameExt;
    QString thumbExt;
};

struct Names
{
    QString full;
    QString thumb;

    bool operator==(const Names &) const = default;
};

/// "frame_norm_NNNNNN_TTTTTTTTTTTT.jpg" and "frame_mini_NNNNNN_TTTTTTTTTTTT.jpg", or "<mask>_NNNNNN_..." and
/// "<mask>_mini_NNNNNN_..."; `counter` and `timeStamp` are text already.
Names namesOf(const Rules &rules, const QString &counter, const QString &timeStamp);

/// The path with the time stamp of the next second in the place of its own. A name without a time stamp gets
/// "_1",
/// "_2" and so on before its suffix.
QString nextSecond(const QString &path);

} // namespace capturenaming
