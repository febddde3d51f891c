#pragma once

#include <chrono>
#include <functional>

namespace kovamo {

/// The main thread's queue of tasks.
class MainQueue {
  public:
    using Task = std::function<void()>;
    using Scheduler = std::function<void(std::chrono::milliseconds delay, Task task)>;

    /// Runs `task` on the main thread once `delay` has passed, never before this call returns.
    static void asyncAfter(std::chrono::milliseconds delay, Task task);

    /// Makes asyncAfter() hand its tasks to `scheduler`; an empty one is the event loop again.
    static void setScheduler(Scheduler scheduler);
};

} // namespace kovamo
