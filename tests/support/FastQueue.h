#pragma once

#include "platform/foundation/MainQueue.h"

#include <map>
#include <utility>

namespace kovamo {

/// The main queue on a clock of its own, which stands still until told to advance.
class FastQueue : public std::multimap<std::chrono::milliseconds, MainQueue::Task> {
  public:
    FastQueue() {
        MainQueue::setScheduler([this](std::chrono::milliseconds delay, MainQueue::Task task) {
            emplace(m_now + delay, std::move(task));
        });
    }
    ~FastQueue() { MainQueue::setScheduler({}); }

    /// Lets `duration` pass and runs what falls due, in order.
    void advance(std::chrono::milliseconds duration) {
        m_now += duration;
        while (!empty() && begin()->first <= m_now)
            extract(begin()).mapped()();
    }

  private:
    std::chrono::milliseconds m_now{0};
};

} // namespace kovamo
