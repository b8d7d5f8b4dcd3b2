#pragma once

#include <algorithm>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

/// Works out the results of positions 0, 1, 2 ... on threads of its own, ahead of the one that uses them, and
/// hands them over in order. What is worked on or waits to be taken is never more than the look-ahead, so
/// memory stays flat however slow the user is.
///
/// One thread makes it, takes from it and destroys it. A result must not depend on those before it.
template <typename Result>
class AheadQueue
{
public:
    using Work = std::function<Result(int position)>;
    /// Makes the work of one thread, so that threads share no state; called on the maker's thread.
    using MakeWork = std::function<Work()>;

    AheadQueue(int count, int lookAhead, const MakeWork &makeWork)
        : m_count(std::max(count, 0)), m_slots(static_cast<std::size_t>(std::max(lookAhead, 1)))
    {
        const int threads = std::min(m_count, static_cast<int>(m_slots.size()));
        m_threads.reserve(static_cast<std::size_t>(threads));
        for (int i = 0; i < threads; ++i)
            m_threads.emplace_back([this, work = makeWork()] { run(work); });
    }

    /// Results nobody took are dropped; each thread finishes the one it is at.
    ~AheadQueue()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_stopped = true;
        }
        m_roomLeft.notify_all();
        for (std::thread &thread : m_threads)
            thread.join();
    }

    AheadQueue(const AheadQueue &) = delete;
    AheadQueue &operator=(const AheadQueue &) = delete;

    /// The result of the next position, waited for; empty behind the last.
    std::optional<Result> next()
    {
        std::unique_lock lock(m_mutex);
        if (m_taken == m_count)
            return std::nullopt;
        std::optional<Result> &slot = slotOf(m_taken);
        m_resultReady.wait(lock, [&slot] { return slot.has_value(); });
        std::optional<Result> result = std::exchange(slot, std::nullopt);
        ++m_taken;
        lock.unlock();
        m_roomLeft.notify_one();
        return result;
    }

private:
    std::optional<Result> &slotOf(int position)
    {
        return m_slots[static_cast<std::size_t>(position) % m_slots.size()];
    }

    bool mayBegin() const
    {
        return m_begun < m_count && m_begun < m_taken + static_cast<int>(m_slots.size());
    }

    void run(const Work &work)
    {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_roomLeft.wait(lock, [this] { return m_stopped || m_begun == m_count || mayBegin(); });
            if (m_stopped || m_begun == m_count)
                return;
            const int position = m_begun++;
            lock.unlock();
            Result result = work(position);
            lock.lock();
            slotOf(position) = std::move(result);
            m_resultReady.notify_one();
            // The last one to begin sends the others home.
            if (m_begun == m_count)
                m_roomLeft.notify_all();
        }
    }

    const int m_count;
    std::mutex m_mutex;
    std::condition_variable m_roomLeft;
    std::condition_variable m_resultReady;
    /// A ring: position n lies in slot n modulo the size.
    std::vector<std::optional<Result>> m_slots;
    int m_begun = 0;
    int m_taken = 0;
    bool m_stopped = false;
    std::vector<std::thread> m_threads;
};
