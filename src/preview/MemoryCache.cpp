#include "preview/MemoryCache.h"

double MemoryCache::usedPercent() const
{
    constexpr double leastShown = 0.2;
    if (m_entries.maxCost() <= 0)
        return leastShown;
    const double percent = double(m_entries.totalCost()) / double(m_entries.maxCost()) * 100;
    return percent == 0 ? leastShown : percent;
}
