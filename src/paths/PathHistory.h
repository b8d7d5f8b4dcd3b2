#pragma once

#include "paths/PathEdits.h"

#include <QList>
#include <QSet>

#include <optional>

namespace morvane {

/// The undo stack of a path. A step is all the edits of one user action; it is taken back as a whole. The
/// oldest steps go when there are more than `maxSteps`, or more than `maxEdits` edits in all steps.
class PathHistory
{
public:
    static constexpr qsizetype maxSteps = 300;
    static constexpr qsizetype maxEdits = 200000;

    /// Changes pushed one after the other with the same gesture number join into one step, until seal().
    enum : int { NoGesture = 0 };

    /// Drops what could be redone and puts the step on top. An empty step is ignored.
    void push(const PathEdits &step, int gesture = NoGesture);
    /// Ends a gesture: the next step stands by itself.
    void seal();

    /// Steps back or forth and gives the edits to carry out, in order; nothing at either end.
    std::optional<PathEdits> takeUndo();
    std::optional<PathEdits> takeRedo();

    /// Drops the edits of nodes that are gone for good.
    void forget(const QSet<int> &guids);
    /// Scales the recorded coordinates, when the canvas under the path takes another size.
    void scale(double scaleX, double scaleY);
    void clear();

    qsizetype stepCount() const;
    /// Number of steps that can be taken back.
    qsizetype position() const;

private:
    bool joins(const PathEdits &step, int gesture) const;
    void join(const PathEdits &step);
    void trim();

    QList<PathEdits> m_steps;
    qsizetype m_position = 0;
    qsizetype m_editCount = 0;
    int m_openGesture = NoGesture;
};

} // namespace morvane
