#pragma once

#include <QByteArray>

namespace kovamo {

/// What a start of the app opens over the main screen.
enum class StartAction { none, newTransaction, allTransactions };

/// The word for an action, which is its option on the command line; empty for none.
[[nodiscard]] QByteArray wordOf(StartAction action);

/// The action of a word; none for a word that is not known.
[[nodiscard]] StartAction startAction(const QByteArray& word);

} // namespace kovamo
