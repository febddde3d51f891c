#include "FatalError.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>
#include <unistd.h>
#include <utility>

namespace kovamo {

namespace {

constexpr unsigned witnessSeconds = 2;

FatalErrorWitness& currentWitness() {
    static FatalErrorWitness witness = nullptr;
    return witness;
}

} // namespace

void fatalError(const QString& message) {
    std::fprintf(stderr, "Fatal error: %s\n", message.toUtf8().constData());
    std::fflush(stderr);
    if (const FatalErrorWitness witness = std::exchange(currentWitness(), nullptr)) {
        // SIGALRM ends the process if the witness does not return.
        ::alarm(witnessSeconds);
        witness(message);
    }
    std::abort();
}

void setFatalErrorWitness(FatalErrorWitness witness) {
    currentWitness() = witness;
}

void forbidCoreDumps() {
    rlimit limit{};
    ::getrlimit(RLIMIT_CORE, &limit);
    // A program that the kernel pipes cores to gets one at a limit of 0, but none at 1. A process
    // that is not dumpable would have none either, but portals could not look at it in /proc.
    limit.rlim_cur = std::min<rlim_t>(1, limit.rlim_max);
    ::setrlimit(RLIMIT_CORE, &limit);
}

} // namespace kovamo
