#pragma once

#include <csignal>
#include <functional>
#include <sqlite3.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace kovamo {

/// A disk under every file that SQLite opens. It can be told to fail at one of its next calls that
/// open, write, sync, cut, map or remove a file; of a failing write, half gets through.
class FaultyDisk {
  public:
    static constexpr int kill = -1;

    /// From the `call`-th call from now: SQLITE_FULL for good, another code once, or `kill`.
    static void fail(int code, int call) {
        if (!s_disk) {
            s_disk = sqlite3_vfs_find(nullptr);
            static sqlite3_vfs faulty = *s_disk;
            faulty.xOpen = open;
            faulty.xDelete = [](sqlite3_vfs* disk, const char* name, int) {
                return due() ? failure() : s_disk->xDelete(disk, name, 0);
            };
            faulty.xSleep = [](sqlite3_vfs* disk, int microseconds) {
                return sleep ? sleep(microseconds) : s_disk->xSleep(disk, microseconds);
            };
            sqlite3_vfs_register(&faulty, 1);
        }
        s_code = code;
        s_left = call;
    }
    /// What happens in place of a pause, if it is set.
    static inline std::function<int(int microseconds)> sleep;
    [[nodiscard]] static bool hasFailed() { return s_left <= 0; }

  private:
    static bool due() {
        --s_left;
        return s_code != SQLITE_OK && (s_left == 0 || (s_left < 0 && s_code == SQLITE_FULL));
    }
    static int failure() { return s_code == kill ? std::raise(SIGKILL) : s_code; }
    template<auto Call, typename... Arguments>
    static int call(sqlite3_file* file, Arguments... arguments) {
        return due() ? failure() : (s_file.*Call)(file, arguments...);
    }
    static int write(sqlite3_file* file, const void* bytes, int size, sqlite3_int64 offset) {
        const bool fails = due();
        const int code = s_file.xWrite(file, bytes, fails ? size / 2 : size, offset);
        return fails ? failure() : code;
    }
    static int open(sqlite3_vfs* disk, const char* name, sqlite3_file* file, int flags, int* out) {
        file->pMethods = nullptr;
        const int code = due() ? failure() : s_disk->xOpen(disk, name, file, flags, out);
        if (code != SQLITE_OK)
            return code;
        static sqlite3_io_methods database, beside;
        sqlite3_io_methods& methods = file->pMethods->xShmMap ? database : beside;
        methods = *file->pMethods;
        if (methods.xShmMap) {
            s_file = methods;
            methods.xShmMap = call<&sqlite3_io_methods::xShmMap>;
        }
        methods.xWrite = write;
        methods.xTruncate = call<&sqlite3_io_methods::xTruncate>;
        // Nothing need reach the disk itself: no test cuts the power.
        methods.xSync = [](sqlite3_file*, int) { return due() ? failure() : SQLITE_OK; };
        file->pMethods = &methods;
        return code;
    }

    static inline sqlite3_vfs* s_disk;
    static inline sqlite3_io_methods s_file;
    static inline int s_code = SQLITE_OK;
    static inline int s_left = 0;
};

/// A fork of this process that does some work for a minute at most: the signal that ended it, 0
/// for none, and what it wrote to standard error.
struct Fork {
    int signal = 0;
    std::string said;

    explicit Fork(const std::function<void()>& work) {
        int ends[2];
        if (::pipe(ends) != 0)
            return;
        if (::fork() == 0) {
            ::dup2(ends[1], STDERR_FILENO);
            ::alarm(60);
            [&]() noexcept { work(); }();
            ::_exit(0);
        }
        ::close(ends[1]);
        for (char letter = 0; ::read(ends[0], &letter, 1) == 1;)
            said += letter;
        ::close(ends[0]);
        ::wait(&signal);
        signal = WIFSIGNALED(signal) ? WTERMSIG(signal) : 0;
    }
};

} // namespace kovamo
