#pragma once

#include "Command.h"
#include "ledger/TimeFrame.h"

#include <QCommandLineParser>
#include <optional>

namespace kovamo {

/// The options that several commands have.
[[nodiscard]] QCommandLineOption frameOption(
    const QString& meaning = QStringLiteral("The time frame: the current month, three months or "
                                            "twelve."));
[[nodiscard]] QCommandLineOption formatOption(const QStringList& formats);

/// A command as somebody called it.
class Call {
  public:
    /// Requires that `command` outlives the call. Throws CommandFailure for a call that is not
    /// understood.
    Call(const Command& command, const QStringList& arguments);

    [[nodiscard]] bool wantsHelp() const;
    [[nodiscard]] QString help() const;

    [[nodiscard]] bool isSet(const char* option) const;
    /// What an option was given; nothing where the call has none of it.
    [[nodiscard]] std::optional<QString> value(const char* option) const;
    /// What an option was given of `choices`, the first of which it is by default. Another value
    /// throws CommandFailure.
    [[nodiscard]] QString choice(const char* option, const QStringList& choices) const;
    /// The time frame, where the call names one.
    [[nodiscard]] std::optional<TimeFrame> frame() const;
    /// The operand; empty where there is none.
    [[nodiscard]] QString operand() const;
    /// The store to work on: the user's own, or the one that the call names.
    [[nodiscard]] QString storePath() const;

  private:
    const Command& m_command;
    QCommandLineParser m_parser;
};

} // namespace kovamo
