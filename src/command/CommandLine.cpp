#include "CommandLine.h"

#include "Call.h"
#include "Commands.h"
#include "Output.h"
#include "platform/foundation/FatalError.h"
#include "platform/objectstore/file/StoreError.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace kovamo {

namespace {

const std::vector<Command>& commands() {
    static const std::vector<Command> all{exportCommand(), importCommand(), balanceCommand(),
                                          listCommand(),   checkCommand(),  copiesCommand(),
                                          restoreCommand()};
    return all;
}

void say(const QString& message) {
    std::fprintf(stderr, "kovamo: %s\n", qUtf8Printable(message));
}

ExitStatus answered(const Command& command, const QStringList& arguments) {
    const Call call(command, arguments);
    if (!call.wantsHelp())
        return command.run(call);
    print(call.help());
    return ExitStatus::done;
}

ExitStatus run(const Command& command, const QStringList& arguments) {
    try {
        const ExitStatus status = answered(command, arguments);
        finishOutput();
        return status;
    } catch (const CommandFailure& failure) {
        if (!failure.message.isEmpty())
            say(failure.message);
        if (failure.status == ExitStatus::wrongCall)
            std::fprintf(stderr, "Try: kovamo %s --help\n", qUtf8Printable(command.name));
        return failure.status;
    } catch (const StoreError& error) {
        say(error.path() + u": " + error.description());
        return ExitStatus::notDone;
    }
}

} // namespace

std::optional<int> runCommand(const QStringList& arguments) {
    const auto command = std::ranges::find(commands(), arguments.value(0), &Command::name);
    if (command == commands().end())
        return std::nullopt;
    // Otherwise SIGPIPE ends the command where the reader of its output has ended, as `head` does.
    std::signal(SIGPIPE, SIG_IGN);
    // A script that calls a command wants an exit status, not a crash.
    setFatalErrorWitness([](const QString&) { std::_Exit(static_cast<int>(ExitStatus::notDone)); });
    return static_cast<int>(run(*command, arguments.mid(1)));
}

QString commandsText() {
    QString text;
    for (const Command& command : commands())
        text += QStringLiteral("  kovamo %1  %2\n").arg(command.name, -8).arg(command.summary);
    return text;
}

} // namespace kovamo
