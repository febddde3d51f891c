#include "Progress.h"

#include <cstdio>
#include <unistd.h>

namespace kovamo {

Progress::Progress(const char* verb, qint64 total)
    : m_verb(verb), m_total(total), m_isTerminal(::isatty(STDERR_FILENO) == 1) {
    m_time.start();
}

Progress::~Progress() {
    if (m_isShown)
        std::fprintf(stderr, "\r\033[K");
}

void Progress::show(qint64 done) {
    constexpr qint64 milliseconds = 100;
    if (!m_isTerminal || m_total <= 0 || m_time.elapsed() < m_nextTime)
        return;
    m_nextTime = m_time.elapsed() + milliseconds;
    m_isShown = true;
    std::fprintf(stderr, "\r%s: %lld %%\033[K", m_verb,
                 static_cast<long long>(done * 100 / m_total));
    std::fflush(stderr);
}

} // namespace kovamo
