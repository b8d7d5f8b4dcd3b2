#pragma once

#include <map>
#include <QList>
#include <unordered_map>

/// The GUIDs of the selected frames, the most recently selected first. No GUID stands in it twice.
/// Adding, removing and asking cost the same however many frames are selected. Main thread only.
class FrameSelection
{
public:
    int count() const
    {
        return int(m_guidsByAge.size());
    }
    bool isEmpty() const
    {
        return m_guidsByAge.empty();
    }
    bool contains(int guid) const
    {
        return m_ages.contains(guid);
    }
    /// The GUID at a position, 0 being the newest; -1 outside the list. Costs more the further back it is.
    int at(int position) const;
    QList<int> guids() const;

    /// Puts the GUID in front. Answers how many entries of the same GUID were taken out for it.
    int select(int guid);
    void deselect(int guid);
    void clear();

private:
    /// Keys fall with every selection, so that the newest stands first.
    std::map<qint64, int> m_guidsByAge;
    std::unordered_map<int, qint64> m_ages;
    qint64 m_nextAge = 0;
};
