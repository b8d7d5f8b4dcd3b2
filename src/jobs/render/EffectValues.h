#pragma once

#include <optional>
#include <QList>
#include <QString>

/// Brings the values that the user chose for a video effect into the ranges that its filter takes.
namespace effectvalues {

/// How one key of a filter is changed.
struct Record
{
    QString property;
    /// For a number: the range of the filter and the range of the control. Without them the value is text.
    struct Range
    {
        double outMin = 0;
        double outMax = 0;
        double inpMin = 0;
        double inpMax = 0;
        /// Counts above 0 and up to 1.
        double scale = -1;
    };
    std::optional<Range> range;
    /// For a text: what stands in front of it and behind it.
    QString prefix;
    QString suffix;
};

/// The records of a filter; none for one whose values pass as they are.
QList<Record> recordsOf(const QString &filterName);

/// The effect with the records applied to it. Empty, with a line in the log, when the text is no effect of
/// that filter or a range is wrong; a key that is not there or does not fit stays.
QString boundEffectValue(const QString &effect, const QString &filterName, const QList<Record> &records);

/// The filter description for a render; empty for no effect.
QString adapted(const QString &effect);

} // namespace effectvalues
