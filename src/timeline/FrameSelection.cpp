#include "timeline/FrameSelection.h"

#include <iterator>

int FrameSelection::at(int position) const
{
    if (position < 0 || position >= count())
        return -1;
    return std::next(m_guidsByAge.begin(), position)->second;
}

QList<int> FrameSelection::guids() const
{
    QList<int> guids;
    guids.reserve(count());
    for (const auto &entry : m_guidsByAge)
        guids.append(entry.second);
    return guids;
}

int FrameSelection::select(int guid)
{
    const bool listed = contains(guid);
    deselect(guid);
    const qint64 age = --m_nextAge;
    m_guidsByAge.emplace(age, guid);
    m_ages.emplace(guid, age);
    return listed ? 1 : 0;
}

void FrameSelection::deselect(int guid)
{
    const auto entry = m_ages.find(guid);
    if (entry == m_ages.end())
        return;
    m_guidsByAge.erase(entry->second);
    m_ages.erase(entry);
}

void FrameSelection::clear()
{
    m_guidsByAge.clear();
    m_ages.clear();
}
