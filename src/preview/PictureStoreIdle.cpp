// What PictureStore does while nobody waits: it reads ahead, writes the disk copies, and looks how much room
// they take.

#include "preview/PictureStore.h"

#include "preview/PictureGeometry.h"
#include "preview/SmoothScaling.h"
#include "preview/SourcePicture.h"

bool PictureStore::workWhileIdle()
{
    if (!m_cache || m_stopping)
        return false;
    return writeCopy() || readAhead() || measureDisk();
}

bool PictureStore::writeCopy()
{
    if (m_pendingCopies.empty())
        return false;
    const PendingCopy copy = std::move(m_pendingCopies.front());
    m_pendingCopies.pop_front();
    m_surroundings.copies->write(copy.folder, copy.name, copy.sourceSize,
                                 morvane::scaledSmoothly(copy.image, copy.size));
    m_diskUseStale = true;
    return true;
}

bool PictureStore::measureDisk()
{
    if (!m_diskUseStale)
        return false;
    m_diskUseStale = false;
    if (m_reports.diskUsedPercent)
        m_reports.diskUsedPercent(m_surroundings.copies->usedPercent(m_surroundings.folders().copies));
    return true;
}

void PictureStore::setReadAhead(const ReadAheadPlan &plan)
{
    if (!m_cache)
        return;
    m_plan = plan;
    m_planPositions.clear();
    for (int i = 0; i < int(plan.names.size()); ++i)
        m_planPositions.insert(plan.names.at(i), i);
    m_unreadable = QBitArray(plan.names.size());
    if (!plan.names.isEmpty())
        takeSizesOf(plan.like);
    surveyReady();
}

/// Looks anew which pictures of the plan lie in memory.
void PictureStore::surveyReady()
{
    m_planExhausted = false;
    m_ready = QBitArray(m_plan.names.size());
    const QString folder = folderOf(m_plan.like);
    for (int i = 0; i < int(m_plan.names.size()); ++i) {
        const QString &name = m_plan.names.at(i);
        m_ready.setBit(i, m_cache->contains(keyOf(name), folder + name));
    }
    reportReady();
}

QString PictureStore::keyOf(const QString &name) const
{
    return m_plan.like.wantsFilters() ? PictureRequest::filteredPrefix + name : name;
}

void PictureStore::markReady(const PictureRequest &request, const QString &path)
{
    const auto found = m_planPositions.constFind(request.name);
    if (found == m_planPositions.cend() || request.key() != keyOf(request.name)
        || path != folderOf(m_plan.like) + request.name)
        return;
    m_ready.setBit(*found);
    reportReady();
}

void PictureStore::reportReady() const
{
    if (m_reports.ready && m_plan.number != 0)
        m_reports.ready(m_plan.number, m_ready);
}

void PictureStore::moveCursorTo(const PictureRequest &request)
{
    const auto found = m_planPositions.constFind(request.name);
    if (found != m_planPositions.cend())
        m_plan.cursor = *found;
}

/// One picture. A full budget ends it until something is cleared, and so does a copy that is to be passed.
bool PictureStore::readAhead()
{
    if (m_planExhausted || !diskCopiesAllowed())
        return false;
    for (int step = 0; step < int(m_plan.names.size()); ++step) {
        const int position = m_plan.position(step);
        if (m_ready.testBit(position) || m_unreadable.testBit(position))
            continue;
        PictureRequest request = m_plan.like;
        request.name = m_plan.names.at(position);
        request.forced = false;
        const Loaded result = load(request, folderOf(request) + request.name, Purpose::ReadingAhead);
        if (result == Loaded::Stored)
            return true;
        if (result == Loaded::NoRoom)
            break;
        m_unreadable.setBit(position);
        return true;
    }
    m_planExhausted = true;
    return false;
}
