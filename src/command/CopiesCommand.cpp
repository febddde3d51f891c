#include "Call.h"
#include "Commands.h"
#include "Output.h"
#include "StoreSummary.h"
#include "platform/objectstore/file/KeptCopies.h"

namespace kovamo {

namespace {

ExitStatus run(const Call& call) {
    for (const KeptCopy& copy : keptCopies(call.storePath()))
        print(QStringLiteral("%1  %2\n").arg(copy.name, -22).arg(summaryOf(copy.path)));
    return ExitStatus::done;
}

} // namespace

Command copiesCommand() {
    return {.name = QStringLiteral("copies"),
            .summary = QStringLiteral("List the copies that are kept of the store."),
            .options = {},
            .operand = {},
            .run = run};
}

} // namespace kovamo
