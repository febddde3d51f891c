#include "FaultyDisk.h"

#include <QtGlobal>
#include <csignal>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kovamo {

namespace {

sqlite3_vfs* realDisk;
sqlite3_io_methods realFile;
// A database's own file has calls for shared memory, the files beside it have none.
sqlite3_io_methods faultyFile;
sqlite3_io_methods faultySideFile;
Fault plannedFault = Fault::none;
int callsLeft = 0;

/// What the call that is being made is to fail with.
int due(int error) {
    if (plannedFault == Fault::none || --callsLeft > 0)
        return SQLITE_OK;
    if (plannedFault == Fault::full)
        return error == SQLITE_CANTOPEN ? error : SQLITE_FULL;
    return callsLeft == 0 ? error : SQLITE_OK;
}

int failed(int code) {
    if (plannedFault == Fault::kill)
        std::raise(SIGKILL);
    return code;
}

/// The function that lets a call through or makes it fail with `error`.
template<auto Member, int error, typename... Arguments>
int callFile(sqlite3_file* file, Arguments... arguments) {
    const int code = due(error);
    return code == SQLITE_OK ? (realFile.*Member)(file, arguments...) : failed(code);
}

int write(sqlite3_file* file, const void* bytes, int size, sqlite3_int64 offset) {
    const int code = due(SQLITE_IOERR_WRITE);
    if (code == SQLITE_OK)
        return realFile.xWrite(file, bytes, size, offset);
    realFile.xWrite(file, bytes, size / 2, offset);
    return failed(code);
}

/// A killed process leaves its bytes to the system: only a power cut would need more.
int sync(sqlite3_file*, int) {
    const int code = due(SQLITE_IOERR_FSYNC);
    return code == SQLITE_OK ? code : failed(code);
}

int open(sqlite3_vfs* disk, const char* name, sqlite3_file* file, int flags, int* outFlags) {
    file->pMethods = nullptr;
    if (const int code = due(SQLITE_CANTOPEN); code != SQLITE_OK)
        return failed(code);
    const int opened = realDisk->xOpen(disk, name, file, flags, outFlags);
    if (opened != SQLITE_OK)
        return opened;
    const bool isDatabase = (flags & SQLITE_OPEN_MAIN_DB) != 0;
    sqlite3_io_methods& faulty = isDatabase ? faultyFile : faultySideFile;
    faulty = *file->pMethods;
    if (isDatabase) {
        realFile = *file->pMethods;
        faulty.xShmMap = callFile<&sqlite3_io_methods::xShmMap, SQLITE_IOERR_SHMMAP>;
    }
    faulty.xWrite = write;
    faulty.xSync = sync;
    faulty.xTruncate = callFile<&sqlite3_io_methods::xTruncate, SQLITE_IOERR_TRUNCATE>;
    file->pMethods = &faulty;
    return opened;
}

int remove(sqlite3_vfs* disk, const char* name, int) {
    const int code = due(SQLITE_IOERR_DELETE);
    return code == SQLITE_OK ? realDisk->xDelete(disk, name, 0) : failed(code);
}

} // namespace

void installFaultyDisk() {
    if (realDisk)
        return;
    realDisk = sqlite3_vfs_find(nullptr);
    static sqlite3_vfs faultyDisk = *realDisk;
    faultyDisk.zName = "faulty";
    faultyDisk.xOpen = open;
    faultyDisk.xDelete = remove;
    sqlite3_vfs_register(&faultyDisk, 1);
}

void failDisk(Fault fault, int call) {
    plannedFault = fault;
    callsLeft = call;
}

bool diskFailed() {
    return callsLeft <= 0;
}

Ended runForked(const std::function<void()>& work) {
    int pipe[2];
    if (::pipe(pipe) != 0)
        return {SIGABRT, "no pipe"};
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(pipe[1], STDERR_FILENO);
        ::alarm(60);
        [&]() noexcept { work(); }();
        ::_exit(0);
    }
    ::close(pipe[1]);
    Ended ended{};
    char buffer[4096];
    for (ssize_t size = 0; (size = ::read(pipe[0], buffer, sizeof buffer)) > 0;)
        ended.said.append(buffer, static_cast<std::size_t>(size));
    ::close(pipe[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    ended.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    return ended;
}

int rounds(int few) {
    bool isNumber = false;
    const int rounds = qEnvironmentVariableIntValue("KOVAMO_ROUNDS", &isNumber);
    return isNumber ? rounds : few;
}

} // namespace kovamo
