#include "MainQueue.h"

#include <QCoreApplication>
#include <QTimer>
#include <utility>

namespace kovamo {

namespace {

MainQueue::Scheduler& currentScheduler() {
    static MainQueue::Scheduler scheduler;
    return scheduler;
}

} // namespace

void MainQueue::asyncAfter(std::chrono::milliseconds delay, Task task) {
    if (const auto& scheduler = currentScheduler())
        scheduler(delay, std::move(task));
    else
        QTimer::singleShot(delay, Qt::PreciseTimer, QCoreApplication::instance(), std::move(task));
}

void MainQueue::setScheduler(Scheduler scheduler) {
    currentScheduler() = std::move(scheduler);
}

} // namespace kovamo
