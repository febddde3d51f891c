#pragma once

#include <QElapsedTimer>

namespace kovamo {

/// How far a command has come, as a line on standard error that is erased with the value. It shows
/// on a terminal only, and once the work has taken a second.
class Progress {
  public:
    /// `verb` is what is being done: "Importing". `total` is in the units of show().
    Progress(const char* verb, qint64 total);
    ~Progress();
    Q_DISABLE_COPY_MOVE(Progress)

    /// Tells how much is done.
    void show(qint64 done);

  private:
    const char* m_verb;
    qint64 m_total;
    bool m_isTerminal;
    QElapsedTimer m_time;
    qint64 m_nextTime = 1000;
    bool m_isShown = false;
};

} // namespace kovamo
