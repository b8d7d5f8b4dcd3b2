#include "paths/PathHistory.h"

#include <QHash>

#include <algorithm>

namespace morvane {

void PathHistory::push(const PathEdits &step, int gesture)
{
    if (step.isEmpty())
        return;
    if (joins(step, gesture)) {
        join(step);
        return;
    }
    while (m_steps.size() > m_position)
        m_editCount -= m_steps.takeLast().size();
    m_steps.append(step);
    m_editCount += step.size();
    m_position = m_steps.size();
    m_openGesture = gesture;
    trim();
}

bool PathHistory::joins(const PathEdits &step, int gesture) const
{
    if (gesture == NoGesture || gesture != m_openGesture || m_position == 0 || m_position != m_steps.size())
        return false;
    const auto isChange = [](const PathEdit &edit) {
        return edit.action == Zum::ActionModify;
    };
    return std::all_of(step.begin(), step.end(), isChange)
           && std::all_of(m_steps.last().begin(), m_steps.last().end(), isChange);
}

void PathHistory::join(const PathEdits &step)
{
    PathEdits &top = m_steps.last();
    QHash<int, qsizetype> places;
    for (qsizetype at = 0; at < top.size(); ++at)
        places.insert(top[at].guid(), at);
    for (const PathEdit &edit : step) {
        const auto place = places.constFind(edit.guid());
        if (place != places.constEnd()) {
            top[*place].after = edit.after;
        } else {
            top.append(edit);
            ++m_editCount;
        }
    }
}

void PathHistory::trim()
{
    // The newest step stays even if it alone is over the limit: what was just done can be taken back.
    while (m_steps.size() > 1 && (m_steps.size() > maxSteps || m_editCount > maxEdits)) {
        m_editCount -= m_steps.takeFirst().size();
        --m_position;
    }
}

void PathHistory::seal()
{
    m_openGesture = NoGesture;
}

std::optional<PathEdits> PathHistory::takeUndo()
{
    seal();
    if (m_position == 0)
        return std::nullopt;
    const PathEdits &step = m_steps[--m_position];
    PathEdits inverse;
    inverse.reserve(step.size());
    for (auto edit = step.crbegin(); edit != step.crend(); ++edit)
        inverse.append(edit->inverse());
    return inverse;
}

std::optional<PathEdits> PathHistory::takeRedo()
{
    seal();
    if (m_position == m_steps.size())
        return std::nullopt;
    return m_steps[m_position++];
}

void PathHistory::forget(const QSet<int> &guids)
{
    seal();
    QList<PathEdits> kept;
    qsizetype position = 0;
    m_editCount = 0;
    for (qsizetype at = 0; at < m_steps.size(); ++at) {
        PathEdits step = m_steps[at];
        step.removeIf([&guids](const PathEdit &edit) { return guids.contains(edit.guid()); });
        if (step.isEmpty())
            continue;
        m_editCount += step.size();
        kept.append(step);
        if (at < m_position)
            ++position;
    }
    m_steps = kept;
    m_position = position;
}

void PathHistory::scale(double scaleX, double scaleY)
{
    for (PathEdits &step : m_steps) {
        for (PathEdit &edit : step) {
            edit.before.scale(scaleX, scaleY);
            edit.after.scale(scaleX, scaleY);
        }
    }
}

void PathHistory::clear()
{
    m_steps.clear();
    m_position = 0;
    m_editCount = 0;
    seal();
}

qsizetype PathHistory::stepCount() const
{
    return m_steps.size();
}

qsizetype PathHistory::position() const
{
    return m_position;
}

} // namespace morvane
