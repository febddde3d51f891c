#include "Call.h"
#include "Commands.h"
#include "OpenStore.h"
#include "Output.h"
#include "StoreSummary.h"
#include "platform/objectstore/file/KeptCopies.h"

#include <QFileInfo>
#include <algorithm>

namespace kovamo {

namespace {

/// The file that a user means by the name of a copy, or by a path.
QString pathOf(const QString& copy, const QString& storePath) {
    const std::vector<KeptCopy> kept = keptCopies(storePath);
    const auto named = std::ranges::find(kept, copy, &KeptCopy::name);
    if (named != kept.end())
        return named->path;
    if (!QFileInfo(copy).isFile())
        throw CommandFailure{u"There is no copy " + copy + u": kovamo copies lists them."};
    if (QFileInfo(copy) == QFileInfo(storePath))
        throw CommandFailure{copy + u" is the store itself."};
    return copy;
}

ExitStatus run(const Call& call) {
    const QString storePath = call.storePath();
    const QString copyPath = pathOf(call.operand(), storePath);
    // One that is damaged or from a newer version is refused here.
    static_cast<void>(OpenStore(copyPath, Store::Access::read));
    const bool isThere = QFileInfo::exists(storePath);
    const QString copy = summaryOf(copyPath);
    const QString former = isThere ? summaryOf(storePath) : QStringLiteral("not there");
    const QString aside = goBackTo(copyPath, storePath);
    print(
        QStringLiteral("The copy: %1\nThe store was: %2\n").arg(copy.trimmed(), former.trimmed()));
    if (!aside.isEmpty())
        print(u"It is kept as " + aside + u'\n');
    return ExitStatus::done;
}

} // namespace

Command restoreCommand() {
    return {.name = QStringLiteral("restore"),
            .summary = QStringLiteral("Go back to a copy; the present store is set aside."),
            .options = {},
            .operand = Operand{QStringLiteral("COPY"),
                               QStringLiteral(
                                   "A name that `kovamo copies` lists, or the path of a store."),
                               true},
            .run = run};
}

} // namespace kovamo
