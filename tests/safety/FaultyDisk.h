#pragma once

#include <functional>
#include <string>

namespace kovamo {

/// How the disk fails: the process is killed in the middle of a call, one call fails, or the disk
/// stays full from a call on.
enum class Fault { none, kill, error, full };

/// Puts a disk that can fail under every file that SQLite opens from now on. Failing writes leave
/// half of their bytes.
void installFaultyDisk();

/// Lets the disk fail at its `call`-th call from now that opens, writes, syncs, cuts, maps or
/// removes a file.
void failDisk(Fault fault, int call);

/// Whether that call has come.
[[nodiscard]] bool diskFailed();

/// How a fork of this process ended, and what it wrote to standard error.
struct Ended {
    /// The signal that ended it; 0 for none.
    int signal;
    std::string said;
};

/// Runs `work` in a fork of this process, which hangs no longer than a minute.
[[nodiscard]] Ended runForked(const std::function<void()>& work);

/// How many rounds a test goes: `few`, or as many as $KOVAMO_ROUNDS says.
[[nodiscard]] int rounds(int few);

} // namespace kovamo
