#pragma once

#include <QHash>
#include <QList>

/// The GUIDs of the selected frames, the most recently selected first. No GUID stands in it twice.
/// Adding, removing and asking cost the same however many frames are selected. Main thread only.
class FrameSelection
{
public:
    int count() const
    {
        return int(m_places.size());
    }
    bool isEmpty() const
    {
        return m_places.isEmpty();
    }
    bool contains(int guid) const
    {
        return m_places.contains(guid);
    }
    /// The GUID at a position, 0 being the newest; -1 outside the list. Where GUIDs were taken out it costs
    /// more the further back it is.
    int at(int position) const;
    QList<int> guids() const;

    /// Puts the GUID in front. Answers how many entries of the same GUID were taken out for it.
    int select(int guid);
    void deselect(int guid);
    void clear();

private:
    void closeHoles();

    /// Oldest first, with a hole where a GUID was taken out: there are never more holes than GUIDs.
    QList<int> m_oldestFirst;
    QHash<int, qsizetype> m_places;
};
