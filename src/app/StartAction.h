#pragma once

#include <QString>

namespace kovamo {

/// What a start of the app opens over the main screen.
enum class StartAction { none, newTransaction, allTransactions };

/// What a start of the app asks for.
struct Start {
    StartAction action = StartAction::none;
    /// The absolute path of a file whose records are to come in; empty for none.
    QString file{};

    [[nodiscard]] bool operator==(const Start&) const = default;
};

/// The word for an action, which is its option on the command line; empty for none.
[[nodiscard]] QByteArray wordOf(StartAction action);

/// A start as one line of one word, and back; what is not known asks for nothing.
[[nodiscard]] QByteArray lineOf(const Start& start);
[[nodiscard]] Start startOf(const QByteArray& line);

} // namespace kovamo
