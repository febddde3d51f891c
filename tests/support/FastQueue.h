#pragma once

#include "platform/foundation/MainQueue.h"

#include <map>
#include <utility>

namespace kovamo {

/// The main queue on a clock of its own, which stands still until told to advance.
class FastQueue {
  public:
    FastQueue() {
        MainQueue::setScheduler([this](std::chrono::milliseconds delay, MainQueue::Task task) {
            m_tasks.emplace(m_now + delay, std::move(task));
        });
    }
    ~FastQueue() { MainQueue::setScheduler({}); }
    FastQueue(const FastQueue&) = delete;
    FastQueue& operator=(const FastQueue&) = delete;

    /// Lets `duration` pass and runs what falls due, in order.
    void advance(std::chrono::milliseconds duration) {
        m_now += duration;
        while (!m_tasks.empty() && m_tasks.begin()->first <= m_now)
            m_tasks.extract(m_tasks.begin()).mapped()();
    }

    /// How many tasks wait.
    [[nodiscard]] std::size_t size() const { return m_tasks.size(); }

  private:
    std::chrono::milliseconds m_now{0};
    std::multimap<std::chrono::milliseconds, MainQueue::Task> m_tasks;
};

} // namespace kovamo
