#include "timeline/FrameSelection.h"

namespace {

constexpr int hole = -1;

} // namespace

int FrameSelection::at(int position) const
{
    if (position < 0 || position >= count())
        return -1;
    qsizetype place = m_oldestFirst.size() - 1;
    if (m_oldestFirst.size() == m_places.size())
        return m_oldestFirst.at(place - position);
    for (int left = position;; --place) {
        if (m_oldestFirst.at(place) != hole && left-- == 0)
            return m_oldestFirst.at(place);
    }
}

QList<int> FrameSelection::guids() const
{
    QList<int> guids;
    guids.reserve(count());
    for (qsizetype place = m_oldestFirst.size() - 1; place >= 0; --place) {
        if (m_oldestFirst.at(place) != hole)
            guids.append(m_oldestFirst.at(place));
    }
    return guids;
}

int FrameSelection::select(int guid)
{
    const bool listed = contains(guid);
    deselect(guid);
    m_places.insert(guid, m_oldestFirst.size());
    m_oldestFirst.append(guid);
    return listed ? 1 : 0;
}

void FrameSelection::deselect(int guid)
{
    const auto entry = m_places.constFind(guid);
    if (entry == m_places.constEnd())
        return;
    m_oldestFirst[entry.value()] = hole;
    m_places.erase(entry);
    if (m_oldestFirst.size() > 2 * m_places.size())
        closeHoles();
}

void FrameSelection::closeHoles()
{
    m_oldestFirst.removeAll(hole);
    for (qsizetype place = 0; place < m_oldestFirst.size(); ++place)
        m_places[m_oldestFirst.at(place)] = place;
}

void FrameSelection::clear()
{
    m_oldestFirst.clear();
    m_places.clear();
}
